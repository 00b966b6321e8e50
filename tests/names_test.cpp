// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/table_state.h"
#include "players/player_names.h"
#include "window/folders.h"

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

class Names : public testing::Test {
  protected:
    Names()
    {
        avvia_programma();
        fs::remove_all(dir);
        fs::create_directories(dir / "music");
        set_folders(dir, dir / "user");
    }
    ~Names() override
    {
        set_folders({}, {});
        fs::remove_all(dir);
    }

    void write(std::string const& text) const { std::ofstream(dir / "Players", std::ios::binary) << text; }
    std::string file() const { return contenuto(dir / "Players"); }
    static std::string read()
    {
        Lettura_Players();
        return tavolo.nomi(0) + "/" + tavolo.nomi(1);
    }

    fs::path const dir = own_folder("names");
};

}  // namespace

TEST_F(Names, AreReadAsFields)
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
        write(text);
        EXPECT_EQ(read(), nomi) << text;
    }
    write(std::string(1 << 20, 'x'));
    Lettura_Players();
    EXPECT_EQ(tavolo.nomi(0), std::string(255, 'x'));
}

TEST_F(Names, StandAnythingInThePlaceOfTheirFile)
{
    EXPECT_EQ(read(), "Player1/Player2");
    fs::create_directories(dir / "Players" / "x");
    EXPECT_EQ(read(), "Player1/Player2");
    tavolo.nomi(0) = "ANNA";
    Registra_Players();
    EXPECT_TRUE(fs::is_directory(dir / "Players"));
    fs::remove_all(dir / "Players");
    ASSERT_EQ(mkfifo((dir / "Players").c_str(), 0600), 0);
    EXPECT_EQ(read(), "Player1/Player2");
    fs::remove(dir / "Players");
    fs::create_directories(dir / "Players.new" / "x");
    Registra_Players();
    EXPECT_FALSE(fs::exists(dir / "Players"));
    fs::remove_all(dir / "Players.new");
    set_folders({}, {});
    Registra_Players();
    EXPECT_EQ(read(), "Player1/Player2");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), {}), 1) << "nothing half written is left";
}

TEST_F(Names, AreTypedInAnyLettersAndKeptInCapitals)
{
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
    EXPECT_EQ(file(), "NICCOL\xD2\r\n\r\n");
    EXPECT_EQ(read(), "NICCOLÒ/");
    EXPECT_TRUE(si_legge("NICCOLÒ"));

    for (auto const& [typed, kept] : {std::pair{"straße", "STRAßE"},
                                      {"ÿœšž÷é", "ŸŒŠŽ÷É"},
                                      {"a\xF0\x9F\x82\xA1z", "A?Z"},
                                      {"\xC3(", "?("},
                                      {"שלום", "????"}}) {
        set_text(TxtPlayer(1), typed);
        TxtPlayer_Change(1);
        EXPECT_EQ(tavolo.nomi(0), kept);
    }
}

TEST_F(Names, StandInWhiteForThePlayerOnTurn)
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
    fs::path const dir = own_folder("folders");
    fs::path const shared = dir / "prefix" / "share" / "games" / "sollevinodue";
    fs::remove_all(dir);
    fs::create_directories(dir / "prefix" / "games");
    fs::create_directories(shared / "music");
    std::ofstream(dir / "prefix" / "games" / "music") << "a program of that name";
    std::ofstream(shared / "music" / "tune") << "a tune";
    set_folders(dir / "prefix" / "games", dir / "user");
    EXPECT_EQ(file_to_read("music/tune"), shared / "music" / "tune");
    EXPECT_EQ(file_to_write("Players"), dir / "user" / "Players");
    EXPECT_TRUE(fs::is_directory(dir / "user"));
    fs::create_directories(dir / "portable" / "sounds");
    set_folders(dir / "portable", dir / "user");
    EXPECT_EQ(file_to_write("Players"), dir / "portable" / "Players");
    set_folders({}, {});
    fs::remove_all(dir);
}
