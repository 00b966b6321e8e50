// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every scene of tests/scenes is played and must be told as it stands. scripts/scenes tells them anew.
#include "kept_file.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

namespace {

std::vector<std::string> lines_of(std::string const& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// The place of the first difference and the lines around it.
std::string difference(std::string const& kept, std::string const& told)
{
    auto const before = lines_of(kept), now = lines_of(told);
    auto const [b, n] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    auto const at = b - before.begin();
    std::ostringstream text;
    text << at + 1;
    for (auto k = std::max<std::ptrdiff_t>(at - 4, 0); k < at; ++k)
        text << "\n       " << before[static_cast<std::size_t>(k)];
    for (auto k = b; k != before.end() && k - b < 3; ++k)
        text << "\n  kept " << *k;
    for (auto k = n; k != now.end() && k - n < 3; ++k)
        text << "\n  told " << *k;
    return text.str();
}

}  // namespace

TEST(Scenes, AreToldAsTheyWere)
{
    int scenes = 0;
    for (auto const& entry : std::filesystem::directory_iterator(TESTS_FOLDER "/scenes")) {
        auto const before = kept(entry.path()), told = racconta(before);
        if (std::getenv("SOLLEVINO_WRITE_SCENES"))
            std::ofstream(entry.path(), std::ios::binary) << told;
        else if (told != before)
            ADD_FAILURE() << entry.path().string() << ':' << difference(before, told);
        ++scenes;
    }
    EXPECT_GT(scenes, 5);
}
