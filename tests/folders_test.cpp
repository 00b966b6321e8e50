// SPDX-License-Identifier: GPL-3.0-or-later
#include "folders.h"
#include "kept_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Tests run beside each other, each in a process of its own.
fs::path own_folder(std::string const& name)
{
    return fs::path(testing::TempDir()) / ("sollevino_" + name + std::to_string(getpid()));
}

}  // namespace

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
    EXPECT_EQ(installed.effect("carta"), dir / "user" / "sounds" / "carta.wav") << "where it would lie";
    EXPECT_EQ(installed.names(), "");
    installed.keep_names("ANNA\r\n");
    EXPECT_EQ(kept(dir / "user" / "Players"), "ANNA\r\n");
    fs::create_directories(dir / "portable" / "sounds");
    Folders(dir / "portable", dir / "user").keep_names("UGO\r\n");
    EXPECT_EQ(kept(dir / "portable" / "Players"), "UGO\r\n");
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
