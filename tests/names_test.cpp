// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "folders.h"
#include "game/table_state.h"
#include "players/player_names.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

namespace fs = std::filesystem;

namespace {

// Tests run beside each other, each in a process of its own.
fs::path own_folder(std::string const& name)
{
    return fs::path(testing::TempDir()) / ("sollevino_" + name + std::to_string(getpid()));
}

std::string read(std::string const& bytes)
{
    finestra.names = bytes;
    Lettura_Players();
    return tavolo.nomi(0) + "/" + tavolo.nomi(1);
}

}  // namespace

TEST(Names, AreReadAsFields)
{
    struct Caso {
        std::string file, nomi;
    };
    for (auto const& [text, nomi] : {
             Caso{"", "Player1/Player2"},
             Caso{"ANNA\r\nUGO\r\n", "ANNA/UGO"},
             Caso{"Anna\nUgo", "Anna/Ugo"},
             Caso{"ANNA\r\n", "ANNA/Player2"},
             Caso{"ANNA", "ANNA/Player2"},
             Caso{"   ", "Player1/Player2"},
             Caso{"ANNA\r\n  ", "ANNA/Player2"},
             Caso{"\r\nUGO\r\n", "/UGO"},
             Caso{"ANNA\r\n\r\n", "ANNA/"},
             Caso{"ROSSI, ANNA\r\nUGO\r\n", "ROSSI/ANNA"},
             Caso{"\"ROSSI, ANNA\"\r\n   UGO\r\n", "ROSSI, ANNA/UGO"},
             Caso{"\"ANNA\" x,UGO", "ANNA/UGO"},
             Caso{"\"ANNA\r\nUGO", "ANNA??UGO/Player2"},
             Caso{"A\r\nB\r\nC\r\nD\r\n", "A/B"},
             Caso{"NICCOL\xD2\r\n\x80URO\r\n", "NICCOLÒ/€URO"},
             Caso{std::string("\0\x01\x81\xff", 4), "???ÿ/Player2"},
         }) {
        EXPECT_EQ(read(text), nomi) << text;
    }
    EXPECT_EQ(read(std::string(1 << 20, 'x')), std::string(255, 'x') + "/Player2");
}

TEST(Names, AreTypedInAnyLettersAndKeptInCapitals)
{
    avvia_programma();
    fino_all_attesa();
    menu(Menu::personalize_players);
    EXPECT_EQ(control(TxtPlayer(1)).text, "Player1");
    EXPECT_EQ(tavolo.nomi(0), "PLAYER1") << "opening the page puts the names in capitals";
    for (char const* text : {"n", "ni", "niccolò"}) {
        set_text(TxtPlayer(1), text);
        TxtPlayer_Change(1);
    }
    EXPECT_EQ(tavolo.nomi(0), "NICCOLÒ");
    EXPECT_EQ(control(TxtPlayer(1)).text, "niccolò") << "the field keeps what was typed";
    set_text(TxtPlayer(2), "");
    TxtPlayer_Change(2);
    clic(1, 75, 120);  // the edge of the closing area
    EXPECT_TRUE(control(TxtPlayer(1)).visible);
    clic(1, 75.1F, 120);
    EXPECT_FALSE(control(TxtPlayer(1)).visible);
    EXPECT_EQ(finestra.names, "NICCOL\xD2\r\n\r\n");
    EXPECT_EQ(read(finestra.names), "NICCOLÒ/");
    EXPECT_TRUE(si_legge("NICCOLÒ"));

    for (auto const& [typed, kept] : {std::pair{"straße", "STRAßE"},
                                      {"ÿœšž÷é", "ŸŒŠŽ÷É"},
                                      {"a\xF0\x9F\x82\xA1z", "A?Z"},
                                      {"\xC3(", "?("},
                                      {"בòòòòòòòò", "?ÒÒÒÒÒÒ"},
                                      {"שלום", "????"}}) {
        set_text(TxtPlayer(1), typed);
        TxtPlayer_Change(1);
        EXPECT_EQ(tavolo.nomi(0), kept);
    }
}

TEST(Names, StandInWhiteForThePlayerOnTurn)
{
    apparecchia("mano KH pozzo QS tallone 2C");
    auto const colori_nomi = [] {
        std::vector<Colore> c;
        for (auto const& m : superficie.marks())
            if (m.kind == Mark::Kind::text)
                c.push_back(m.colore);
        return c;
    };
    Posiziona_Players();
    EXPECT_EQ(colori_nomi(), (std::vector{colori::bianco, colori::cornice}));
    tavolo.turno = 2;
    Posiziona_Players();
    EXPECT_EQ(colori_nomi(), (std::vector{colori::cornice, colori::bianco}))
        << "the same words replace the old ones";
    tavolo.azione = 7;
    Posiziona_Players();
    EXPECT_EQ(colori_nomi(), (std::vector{colori::cornice, colori::cornice}));
}

TEST(Folders, APortableFolderKeepsEverythingAndAnInstalledOneWritesToTheUsers)
{
    fs::path const dir = own_folder("folders"), shared = dir / "prefix" / "share" / "games" / "sollevinodue";
    fs::remove_all(dir);
    fs::create_directories(dir / "prefix" / "games");
    fs::create_directories(shared / "music");
    std::ofstream(dir / "prefix" / "games" / "music") << "a program of that name";
    std::ofstream(shared / "music" / "Rondo\u0300.mid") << "a tune from another system";
    Folders const installed(dir / "prefix" / "games", dir / "user");
    EXPECT_EQ(installed.tune("Rondò"), shared / "music" / "Rondo\u0300.mid");
    EXPECT_EQ(installed.names(), "");
    installed.keep_names("ANNA\r\n");
    EXPECT_EQ(contenuto(dir / "user" / "Players"), "ANNA\r\n");
    fs::create_directories(dir / "portable" / "sounds");
    Folders(dir / "portable", dir / "user").keep_names("UGO\r\n");
    EXPECT_EQ(contenuto(dir / "portable" / "Players"), "UGO\r\n");
    fs::remove_all(dir);
}

TEST(Folders, StandAnythingInThePlaceOfTheNames)
{
    fs::path const dir = own_folder("names"), file = dir / "Players";
    fs::remove_all(dir);
    fs::create_directories(dir / "music");
    Folders const here(dir, dir / "user");
    fs::create_directories(file / "x");
    here.keep_names("ANNA");
    EXPECT_EQ(here.names(), "");
    EXPECT_TRUE(fs::is_directory(file));
    fs::remove_all(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(here.names(), "");
    fs::remove(file);
    auto const half_written = dir / ("Players." + std::to_string(getpid()) + ".new");
    fs::create_directories(half_written / "x");
    here.keep_names("ANNA");
    EXPECT_FALSE(fs::exists(file));
    fs::remove_all(half_written);
    std::ofstream(dir / "Players.999999999.new") << "AN";  // of a game that was killed
    Folders().keep_names("ANNA");
    EXPECT_EQ(Folders().names(), "");
    here.keep_names(std::string(1 << 20, 'x'));
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), {}), 2) << "nothing half written is left";
    EXPECT_EQ(here.names().size(), 65536);
    fs::remove_all(dir);
}
