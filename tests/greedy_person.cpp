// SPDX-License-Identifier: GPL-3.0-or-later
#include "greedy_person.h"

#include "at_the_table.h"
#include "audio/sound_music.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "human/pointer_input.h"
#include "melds/attach_rules.h"
#include "melds/table_melds.h"
#include "players/player_names.h"

#include <algorithm>
#include <array>
#include <deque>
#include <set>
#include <sstream>
#include <utility>

namespace {

using Slots = std::vector<int>;

// The longest run or the largest set of a hand, as slots; empty if there is none. A run may pass the Ace.
Slots best_meld(std::vector<int> const& carte)
{
    Serie<int, 52> slot;  // of each face; 0 where it is not held
    for (std::size_t s = 0; s < carte.size(); ++s)
        slot(prima_copia(carte[s])) = static_cast<int>(s) + 1;
    Slots best(2), meld;
    meld.reserve(13);
    auto const held = [&](int face) {
        if (slot(face))
            meld.push_back(slot(face));
        return slot(face) != 0;
    };
    auto const take_if_longer = [&] {
        if (meld.size() > best.size())
            best = meld;
        meld.clear();
    };
    for (int suit = 0; suit < 52; suit += 13)
        for (int first = 0; first < 13; ++first) {
            for (int rank = first; held(suit + rank % 13 + 1) && rank < first + 12;)
                ++rank;
            take_if_longer();
        }
    for (int rank = 1; rank <= 13; ++rank) {
        for (int suit = 0; suit < 52; suit += 13)
            held(suit + rank);
        take_if_longer();
    }
    return best.size() >= 3 ? best : Slots{};
}

// Whether the card fits the meld from prima to ultima.
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

// Where to click to attach the card, 0 if it fits no meld: in the middle of the region in which a click means
// that meld, each a step wider than its picture.
Single where_to_attach(int carta)
{
    Single left = tavolo.centro_x - 200;
    for (int prima = 1, ultima; prima <= tavolo.n_calate(1); prima = ultima + 2) {
        ultima = ultima_carta(1, prima);
        Single const width = static_cast<Single>(ultima - prima + 3) * tavolo.larg_carta / 5;
        if (fits(carta, prima, ultima))
            return left + width / 2;
        left += width;
    }
    return 0;
}

class Evening {
  public:
    Evening(std::uint32_t seed, PlayedHands& played, bool restless)
        : random_(seed), played_(&played), restless_(restless)
    {
    }

    bool too_long() const { return turns_ > max_turns; }

    // What stands on the table at a wait of the game, read as a person could.
    void look()
    {
        auto const& t = tavolo;
        if (noted) {
            hash_table();
            hash_log();
        }
        if (finestra.beeps)
            played_->moves["computer attaches"] += std::exchange(finestra.beeps, 0);
        bool const playing = t.azione != 7 && t.azione != 15 && t.n_carte(1) > 0 && t.n_carte(2) > 0;
        int const turno = playing ? int{t.turno} : 0;
        if (turno == turno_)
            return;
        if (turno_ == 2)
            computer_has_played();
        if (turno_ != 0 && turno != 0 && t.cima_tallone < cima_)
            count("reshuffle");
        turns_ = playing ? turns_ + 1 : 0;
        played_->turns += playing;
        played_->most_turns = std::max(played_->most_turns, turns_);
        turno_ = turno;
        cima_ = t.cima_tallone;
    }

    // The game waits for the person.
    void act()
    {
        auto const& t = tavolo;
        if (restless_ && random(8) == 0) {
            fidget();
        } else if (t.azione == 7) {
            clic(1, 512, 384);
        } else if (t.n_carte(1) == 0 || t.n_carte(2) == 0) {
            bool const open = enabled(Menu::menu_continue);
            ++played_->hands;
            played_->matches += !open;
            lazy_ = restless_ && random(3) == 0;
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
    void count(std::string_view move)
    {
        if (noted)
            ++played_->moves[std::string(move)];
    }

    void add(int value)
    {
        std::array const bytes{static_cast<char>(value), static_cast<char>(value >> 8)};
        fold(played_->hash, {bytes.data(), bytes.size()});
    }

    void hash_table()
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
        for (int const value : {int{t.cima_tallone}, int{t.turno}, int{t.azione}, int{t.pescato}})
            add(value);
    }

    void hash_log()
    {
        if (script)
            *script << "look\n";
        for (auto const& line : finestra.log)
            fold(played_->shown, line + '\n');
        fold(played_->shown, std::to_string(superficie.marks().size()));
        finestra.log.clear();
        finestra.boxes.clear();
    }

    void computer_has_played()
    {
        bool const stock = tavolo.cima_tallone != cima_;
        if (tavolo.n_decise == 0)
            return count(stock ? "computer draws from the stock" : "computer attaches from the pile");
        count(stock ? "computer lays with the stock" : "computer lays with the pile");
        count(scala(2, tavolo.n_calate(2) - 1) ? "computer lays a run" : "computer lays a set");
    }

    static std::vector<int> hand() { return {&tavolo.mano(1, 1), &tavolo.mano(1, 1) + tavolo.n_carte(1)}; }
    static bool wants(int carta)
    {
        auto with = hand();
        with.push_back(carta);
        return std::ranges::count(best_meld(with), std::ssize(with)) > 0 || where_to_attach(carta) > 0;
    }

    void draw()
    {
        tried_.clear();
        if (random(40) == 0) {
            count("person is silly");
            int const what = random(3);
            return what == 2 ? clic_calate(x_calate(1)) : clic_mano(1 + what, 1);
        }
        bool const pile = wants(tavolo.pozzo(tavolo.n_pozzo - 1));
        count(pile ? "person draws from the pile" : "person draws from the stock");
        pile ? pesca_pozzo() : pesca_tallone();
    }

    void play()
    {
        auto const carte = hand();
        if (std::ranges::any_of(carte, [](int c) { return c > scelta; }))
            return clic_mano(1, 1);  // a click beside the row has left them up
        if (random(60) == 0)
            return silly();
        if (lazy_)
            return discard(carte);
        if (auto const meld = best_meld(carte); !meld.empty()) {
            auto const suit = [&](std::size_t k) {
                return Seme(carte[static_cast<std::size_t>(meld[k] - 1)]);
            };
            return lay(meld, x_calate(1), suit(0) == suit(1) ? "person lays a run" : "person lays a set");
        }
        // An attach is tried once a turn: a click can miss a meld far to the right.
        for (int s = 1; carte.size() > 1 && s <= std::ssize(carte); ++s)
            if (Single const x = where_to_attach(tavolo.mano(1, s));
                x > 0 && tried_.insert(tavolo.mano(1, s)).second)
                return lay({s}, x, "person attaches");
        discard(carte);
    }

    // Selects the slots one by one and clicks the row at x.
    void lay(Slots const& slots, Single x, std::string_view what)
    {
        for (int const s : slots)
            plan_.emplace_back([s] { clic_mano(2, s); });
        plan_.emplace_back([this, x, what, before = int{tavolo.n_carte(1)}, meld = slots.size() != 1] {
            int const calate = tavolo.n_calate(1);
            clic_calate(x);
            bool const done = tavolo.n_carte(1) < before;
            count(done ? what : "person is refused");
            if (done && meld && calate > 0 && tavolo.n_calate(1) < calate + 4)
                count("person joins runs");
        });
    }

    // The dearest of the cards that fit least with the others.
    void discard(std::vector<int> const& carte)
    {
        auto const score = [&](int carta) {
            int const v = ValCarta(carta);
            auto const friends = std::ranges::count_if(carte, [&](int other) {
                return Seme(other) == Seme(carta) ? prolunga(ValCarta(other), v, v) : ValCarta(other) == v;
            });
            return (v == 1 ? 15 : v <= 5 ? 5 : 10) - 20 * std::min<int>(static_cast<int>(friends), 3);
        };
        count("person discards");
        clic_mano(1, static_cast<int>(std::ranges::max_element(carte, {}, score) - carte.begin()) + 1);
    }

    // Something that is no move of the game.
    void fidget()
    {
        count("person fidgets");
        switch (random(10)) {
        case 0: return menu(velocità(1 + random(n_velocità)));
        case 1: return menu(canzoni(1 + random(n_canzoni)));
        case 2: return menu(random(2) ? Menu::nomusic : Menu::all);
        case 3: return menu(random(2) ? Menu::menu_card_rustle_no : Menu::menu_card_rustle_yes);
        case 4: return menu(std::array{Menu::istruzioni, Menu::menu_about, Menu::menu_help}[random_() % 3]);
        case 5: return menu(Menu::esci);
        case 6: return brano_finito(1);
        case 7: return muovi(400, random(2) ? 520.0F : 20.0F);
        case 8: return misura({1024, 700 + random(100)});
        default: break;
        }
        menu(Menu::personalize_players);
        if (tavolo.azione != 7)
            return;
        scrivi(1, random(2) ? "anna" : "");
        if (random(2))
            clic(1, 100, 120);
    }

    void silly()
    {
        int const what = random(5), n = tavolo.n_carte(1);
        if (what < 2) {
            count("person is silly");
            what == 0 ? pesca_pozzo() : clic_calate(x_calate(1));
        } else if (what == 2 && n >= 2) {
            count("person cancels a selection");
            plan_ = {[] { clic_mano(2, 1); }, [] { clic_mano(1, 2); }};
        } else if (what > 2) {
            Slots some;
            for (int s = 1; s <= n; ++s)
                if (random(4) == 0)
                    some.push_back(s);
            if (n > 1 && !some.empty())
                lay(some, x_calate(random(20)), "person lays by luck");
        }
    }

    std::mt19937 random_;
    PlayedHands* played_;
    std::deque<std::function<void()>> plan_;
    std::set<int> tried_;
    bool restless_, lazy_ = false;
    int turns_ = 0, turno_ = 0;  // of this hand; whose turn it is, 0 between two hands
    int cima_ = 0;               // of the stock when the turn began
};

}  // namespace

PlayedHands gioca_partite(int matches, std::uint32_t seed, std::function<void()> const& at_each_wait,
                          bool restless)
{
    PlayedHands played;
    auto const begin = [&] {
        auto const now = seed + static_cast<std::uint32_t>(played.abandoned);
        avvia_programma({1024, 779}, now % 86400U);
        return Evening(now, played, restless);
    };
    if (script)
        *script << "series\n";
    auto evening = begin();
    while (played.matches + played.abandoned < matches) {
        fino_all_attesa([&] { evening.look(), at_each_wait(); });
        if (evening.too_long()) {
            ++played.abandoned;
            evening = begin();
        } else {
            evening.act();
        }
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

std::string shown(PlayedHands const& played, std::uint32_t seed)
{
    auto const restless = gioca_partite((played.matches + 9) / 10, seed, [] {}, true);
    std::ostringstream text;
    text << "shown " << std::hex << (played.shown ^ restless.shown * 31) << std::dec << ", " << restless.hands
         << " restless hands, " << restless.moves.at("person fidgets") << " times fidgeting";
    return text.str();
}
