// SPDX-License-Identifier: GPL-3.0-or-later
#include "greedy_person.h"

#include "at_the_table.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "melds/attach_rules.h"
#include "melds/table_melds.h"

#include <algorithm>
#include <deque>
#include <sstream>

namespace {

using Slots = std::vector<int>;

// One slot for each of the 52 faces of a hand, entry 0 unused; 0 where the face is not held.
Serie<int, 52> slots_by_face(std::vector<int> const& carte)
{
    Serie<int, 52> slot;
    for (std::size_t s = 0; s < carte.size(); ++s)
        slot(prima_copia(carte[s])) = static_cast<int>(s) + 1;
    return slot;
}

// The longest run or the largest set of a hand, as slots; empty if there is none. A run may pass the Ace.
Slots best_meld(std::vector<int> const& carte)
{
    auto const slot = slots_by_face(carte);
    Slots best;
    for (int seme = 0; seme < 4; ++seme)
        for (int primo = 0; primo < 13; ++primo) {
            Slots run;
            for (int k = 0; k < 13 && slot(seme * 13 + (primo + k) % 13 + 1); ++k)
                run.push_back(slot(seme * 13 + (primo + k) % 13 + 1));
            if (run.size() > best.size())
                best = run;
        }
    for (int v = 1; v <= 13; ++v) {
        Slots set;
        for (int seme = 0; seme < 4; ++seme)
            if (int const s = slot(seme * 13 + v))
                set.push_back(s);
        if (set.size() > best.size())
            best = set;
    }
    return best.size() >= 3 ? best : Slots{};
}

bool fits(int carta, int prima, int ultima)
{
    auto const card = [](int i) { return tavolo.calate(1, i); };
    if (scala(1, ultima))
        return Seme(carta) == Seme(card(ultima)) &&
               prolunga(ValCarta(carta), ValCarta(card(prima)), ValCarta(card(ultima)));
    int suits = Seme(carta);
    for (int i = prima; i <= ultima; ++i)
        suits += Seme(card(i));
    return ultima - prima == 2 && ValCarta(carta) == ValCarta(card(ultima)) && suits == somma_semi;
}

// Middle of the region in which a click means the k-th meld (from 0): each is a step wider than its picture.
Single region(int k)
{
    auto const& t = tavolo;
    Single const step = t.larg_carta / 5;
    Single left = t.centro_x - 200;
    int prima = 1;
    for (;; --k) {
        int const ultima = ultima_carta(1, prima);
        Single const width = static_cast<Single>(ultima - prima + 3) * step;
        if (k == 0)
            return left + width / 2;
        left += width;
        prima = ultima + 2;
    }
}

// Where to click to attach the card; 0 if it fits no meld.
Single where_to_attach(int carta)
{
    int k = 0;
    for (int prima = 1; prima <= tavolo.n_calate(1); ++k) {
        int const ultima = ultima_carta(1, prima);
        if (fits(carta, prima, ultima))
            return region(k);
        prima = ultima + 2;
    }
    return 0;
}

int points(int carta)
{
    int const v = ValCarta(carta);
    return v == 1 ? 15 : v <= 5 ? 5 : 10;
}

class Person {
  public:
    Person(std::uint32_t seed, PlayedHands& played) : random_(seed), played_(&played) {}

    // The game waits for the person.
    void act()
    {
        auto const& t = tavolo;
        if (t.azione == 7) {
            clic(1, 512, 384);
        } else if (t.n_carte(1) == 0 || t.n_carte(2) == 0) {
            bool const open = enabled(Menu::menu_continue);
            played_->matches += !open;
            menu(open ? Menu::menu_continue : Menu::menu_NewGame);
        } else if (!plan_.empty()) {
            auto const next = plan_.front();
            plan_.pop_front();
            next();
        } else if (!t.pescato) {
            draw();
        } else {
            play();
        }
    }

  private:
    int random(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    void count(std::string const& move) { ++played_->moves["person " + move]; }

    static std::vector<int> hand()
    {
        std::vector<int> carte;
        for (int s = 1; s <= tavolo.n_carte(1); ++s)
            carte.push_back(tavolo.mano(1, s));
        return carte;
    }
    static bool wants(int carta)
    {
        auto with = hand();
        with.push_back(carta);
        return std::ranges::count(best_meld(with), static_cast<int>(with.size())) > 0 ||
               where_to_attach(carta) > 0;
    }

    void draw()
    {
        tried_.clear();
        if (random(40) == 0)
            return silly_before_the_draw();
        bool const pile = wants(tavolo.pozzo(tavolo.n_pozzo - 1));
        count(pile ? "draws from the pile" : "draws from the stock");
        (pile ? pesca_pozzo() : pesca_tallone())();
    }

    void play()
    {
        auto const carte = hand();
        if (std::ranges::any_of(carte, [](int c) { return c > scelta; }))
            return clic_mano(1, 1);  // a click beside the row has left them up
        if (random(60) == 0)
            return silly();
        if (auto const meld = best_meld(carte); !meld.empty()) {
            bool const run = Seme(carte[static_cast<std::size_t>(meld[0] - 1)]) ==
                             Seme(carte[static_cast<std::size_t>(meld[1] - 1)]);
            lay(meld, x_calate(1), run ? "lays a run" : "lays a set");
            return;
        }
        for (std::size_t s = 0; carte.size() > 1 && s < carte.size(); ++s)
            if (Single const x = where_to_attach(carte[s]); x > 0 && !tried(carte[s])) {
                lay({static_cast<int>(s) + 1}, x, "attaches");
                return;
            }
        discard(carte);
    }

    // Selects the slots one by one and clicks the row at x.
    void lay(Slots const& slots, Single x, std::string const& what)
    {
        for (int const s : slots)
            plan_.emplace_back([s] { clic_mano(2, s); });
        int const before = tavolo.n_carte(1);
        plan_.emplace_back([this, before, x, what, meld = slots.size() != 1] {
            int const calate = tavolo.n_calate(1);
            clic(1, x, tavolo.centro_y + 120 + tavolo.alt_carta / 2);
            bool const done = tavolo.n_carte(1) < before;
            count(done ? what : "is refused");
            if (done && meld && calate > 0 && tavolo.n_calate(1) < calate + 4)
                count("joins runs");
        });
    }

    void discard(std::vector<int> const& carte)
    {
        int best = 1, best_score = -1;
        for (std::size_t s = 0; s < carte.size(); ++s) {
            int friends = 0;
            for (int const other : carte)
                friends += (ValCarta(other) == ValCarta(carte[s]) && Seme(other) != Seme(carte[s])) ||
                           (Seme(other) == Seme(carte[s]) &&
                            prolunga(ValCarta(other), ValCarta(carte[s]), ValCarta(carte[s])));
            int const score = points(carte[s]) + 20 * (3 - std::min(friends, 3));
            if (score > best_score) {
                best_score = score;
                best = static_cast<int>(s) + 1;
            }
        }
        count("discards");
        clic_mano(1, best);
    }

    // An attach is tried once a turn: a click can miss a meld far to the right.
    bool tried(int carta)
    {
        bool const before = std::ranges::count(tried_, carta) > 0;
        tried_.push_back(carta);
        return before;
    }

    void silly_before_the_draw()
    {
        count("is silly");
        switch (random(3)) {
        case 0: return clic_mano(1, 1);
        case 1: return clic_mano(2, 1);
        default: return clic_calate()();
        }
    }

    void silly()
    {
        auto const n = static_cast<int>(tavolo.n_carte(1));
        switch (random(5)) {
        case 0: count("is silly"); return pesca_pozzo()();
        case 1: count("is silly"); return clic_calate()();
        case 2:
            if (n < 2)
                return;
            count("cancels a selection");
            plan_.emplace_back([] { clic_mano(2, 1); });
            plan_.emplace_back([] { clic_mano(1, 2); });
            return;
        default: {
            Slots some;
            for (int s = 1; s <= n; ++s)
                if (random(4) == 0)
                    some.push_back(s);
            if (n > 1 && !some.empty())
                lay(some, x_calate(random(20)), "lays by luck");
        }
        }
    }

    std::mt19937 random_;
    PlayedHands* played_;
    std::deque<Azione> plan_;
    std::vector<int> tried_;
};

class Recorder {
  public:
    explicit Recorder(PlayedHands& played) : played_(&played) {}

    void look()
    {
        auto const& t = tavolo;
        for (int p = 1; p <= 2; ++p) {
            add(t.n_carte(p));
            for (int s = 1; s <= t.n_carte(p); ++s)
                add(t.mano(p, s));
            for (int i = 1; i <= t.n_calate(p); ++i)
                add(t.calate(p, i));
            add(t.totale(p));
        }
        add(t.n_pozzo);
        if (t.n_pozzo > 0)
            add(t.pozzo(t.n_pozzo - 1));
        add(t.cima_tallone);
        add(t.turno);
        add(t.azione);
        add(t.pescato);
        follow_turns();
    }
    bool too_long() const { return turns_ > max_turns; }

  private:
    void add(int value)
    {
        for (int shift : {0, 8}) {
            played_->hash ^= static_cast<unsigned>(value >> shift) & 0xFFU;
            played_->hash *= 1099511628211U;
        }
    }

    void count(char const* move) { ++played_->moves[move]; }

    void follow_turns()
    {
        auto const& t = tavolo;
        if (t.azione == 15 || t.azione == 7) {
            if (!dealing_ && t.azione == 15)
                ++played_->hands;
            dealing_ = true;
            turns_ = 0;
            turno_ = 0;
            stock_ = 0;
            return;
        }
        if (dealing_ && t.n_pozzo == 0)
            return;
        dealing_ = false;
        if (t.cima_tallone < stock_)
            count("reshuffle");
        stock_ = t.cima_tallone;
        if (turno_ != t.turno) {
            turno_ = t.turno;
            ++turns_;
            ++played_->turns;
            played_->most_turns = std::max(played_->most_turns, turns_);
        }
        computer();
    }

    // What the computer has done since the last wait, read from the table as a person could.
    void computer()
    {
        auto const& t = tavolo;
        if (t.turno == 2 && finestra.computer_turns != its_turns_) {
            its_turns_ = finestra.computer_turns;
            open_ = true;
            cima_ = t.cima_tallone;
            melds_ = t.n_calate(2);
            beeps_ = finestra.beeps;
            return;
        }
        if (!open_ || (t.turno == 2 && !t.pescato))
            return;
        open_ = false;
        bool const stock = t.cima_tallone != cima_;
        bool const laid = t.n_decise != 0;
        count(laid    ? stock ? "computer lays with the stock" : "computer lays with the pile"
              : stock ? "computer draws from the stock"
                      : "computer attaches from the pile");
        if (laid)
            count(scala(2, ultima_carta(2, melds_ + 1)) ? "computer lays a run" : "computer lays a set");
        played_->moves["computer attaches"] += finestra.beeps - beeps_;
    }

    PlayedHands* played_;
    int turns_ = 0, turno_ = 0, stock_ = 0;
    bool dealing_ = false, open_ = false;
    int its_turns_ = 0, cima_ = 0, melds_ = 0, beeps_ = 0;
};

}  // namespace

PlayedHands gioca_partite(int matches, std::uint32_t seed, std::function<void()> const& at_each_wait)
{
    PlayedHands played;
    Person person(seed, played);
    Recorder recorder(played);
    auto const start = [&] {
        avvia_programma();
        finestra.day_began = seed % 86400U;
    };
    auto const look = [&] {
        recorder.look();
        at_each_wait();
    };
    start();
    while (played.matches + played.abandoned < matches) {
        fino_all_attesa(look);
        if (recorder.too_long()) {
            ++played.abandoned;
            double const later = finestra.now / 1000 + 1;
            recorder = Recorder(played);
            person = Person(seed + static_cast<std::uint32_t>(played.abandoned), played);
            start();
            finestra.day_began += later;
            continue;
        }
        person.act();
    }
    return played;
}

std::string to_text(PlayedHands const& played)
{
    std::ostringstream text;
    text << played.matches << " matches, " << played.abandoned << " abandoned after " << max_turns
         << " turns of one hand, " << played.hands << " hands, " << played.turns << " turns, at most "
         << played.most_turns << " in one hand\n";
    for (auto const& [move, times] : played.moves)
        text << times << ' ' << move << '\n';
    text << std::hex << played.hash;
    return text.str();
}
