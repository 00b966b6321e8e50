// SPDX-License-Identifier: GPL-3.0-or-later
//
// The reader of the names file stands any bytes: two names of at most 255 characters come out, in the file's
// code page, and a name without a comma, a quote or a blank in front is read back as it is written.
#include "game/table_state.h"
#include "players/player_names.h"
#include "players/windows_1252.h"

#include <cstdlib>

namespace {
void must(bool condition)
{
    if (!condition)
        std::abort();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    leggi_nomi({reinterpret_cast<char const*>(data), size});
    std::string const human = tavolo.nomi(0), computer = tavolo.nomi(1);
    std::string const bytes = a_windows_1252(human);
    must(bytes.size() <= 255);
    must(da_windows_1252(bytes) == human);
    if (bytes.find_first_of(",\"") == std::string::npos && !bytes.starts_with(' ')) {
        leggi_nomi(bytes + "\r\n" + a_windows_1252(computer) + "\r\n");
        must(tavolo.nomi(0) == human);
    }
    return 0;
}
