// SPDX-License-Identifier: GPL-3.0-or-later
//
// A stream of events on the silent window: clicks, menu picks, the timer, resizes, names, ends of tunes. The
// table stays whole at every wait.
#include "at_the_table.h"
#include "audio/sound_music.h"
#include "game/table_check.h"
#include "human/pointer_input.h"
#include "players/player_names.h"

#include <cstdlib>

namespace {

class Bytes {
  public:
    Bytes(std::uint8_t const* data, std::size_t size) : data_(data), size_(size) {}
    bool left() const { return at_ < size_; }
    int next() { return left() ? data_[at_++] : 0; }

  private:
    std::uint8_t const* data_;
    std::size_t size_, at_ = 0;
};

void one_event(Bytes& bytes)
{
    switch (bytes.next() % 12) {
    case 0: return menu_click(static_cast<Menu>(bytes.next() % n_voci));
    case 1: client_size({bytes.next() * 16, bytes.next() * 16}); return Form_Resize();
    case 2:
        set_text(TxtPlayer(1 + bytes.next() % 2), std::string(1, static_cast<char>(bytes.next())));
        return TxtPlayer_Change(1);
    case 3: return MMC1_Done(bytes.next() % 3);
    case 4:
        return Form_MouseMove(0, 0, static_cast<Single>(bytes.next()) * 4,
                              static_cast<Single>(bytes.next()) * 3);
    case 5: return Form_MouseDown(1, 0, 512 + static_cast<Single>(bytes.next() % 60 - 30), 384);
    case 6: return Form_MouseDown(1, 0, 312 + static_cast<Single>(bytes.next()), 520);
    case 7:
    case 8: return Form_MouseDown(2, 0, static_cast<Single>(bytes.next()) * 4, 700);
    case 9: return Form_MouseDown(1, 0, static_cast<Single>(bytes.next()) * 4, 700);
    case 10:
        return Form_MouseDown(bytes.next() % 4, 0, static_cast<Single>(bytes.next()) * 4,
                              static_cast<Single>(bytes.next()) * 3);
    default: finestra.answer_yes = bytes.next() == 0; return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Bytes bytes(data, size);
    avvia_programma();
    finestra.day_began = bytes.next() * 256 + bytes.next();
    runner.resume();
    while (bytes.left() && !finestra.ended) {
        // The virtual clock is free: most of the time the game goes on until it waits for somebody.
        if (bytes.next() % 8 == 0)
            scatta_timer();
        else
            fino_all_attesa();
        evento([&] { one_event(bytes); });
        runner.resume();
        if (!tavolo_coerente())
            std::abort();
    }
    return 0;
}
