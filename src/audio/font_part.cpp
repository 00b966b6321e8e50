// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/font_part.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace audio {

namespace {

// ---- MIDI files

// Reads numbers from the front of some bytes. Behind the last byte there are zeros.
class Reader {
  public:
    explicit Reader(std::span<std::byte const> bytes) : rest_(bytes) {}

    bool at_end() const { return rest_.empty(); }
    unsigned peek() const { return rest_.empty() ? 0 : std::to_integer<unsigned>(rest_.front()); }
    unsigned byte()
    {
        unsigned const b = peek();
        skip(1);
        return b;
    }
    unsigned big_endian()  // four bytes
    {
        unsigned n = 0;
        for (int i = 0; i < 4; ++i)
            n = n << 8 | byte();
        return n;
    }
    unsigned seven_bits_each()
    {
        unsigned n = 0;
        while (peek() & 0x80)
            n = n << 7 | (byte() & 0x7F);
        return n << 7 | byte();
    }
    std::span<std::byte const> skip(std::size_t n)
    {
        auto const skipped = rest_.first(std::min(n, rest_.size()));
        rest_ = rest_.subspan(skipped.size());
        return skipped;
    }

  private:
    std::span<std::byte const> rest_;
};

void read_track(Reader track, Programs& found)
{
    unsigned status = 0;  // an event without one has that of the event before
    while (!track.at_end()) {
        track.seven_bits_each();  // the time that goes by
        if (track.peek() & 0x80)
            status = track.byte();
        if (status < 0x80)
            return;
        if (status >= 0xF0) {
            if (status == 0xFF)
                track.byte();
            track.skip(track.seven_bits_each());
        } else if (status >> 4 == 0xC) {
            found.set(track.byte() & 0x7F);
        } else {
            track.skip(status >> 4 == 0xD ? 1 : 2);
        }
    }
}

// ---- Sound fonts. The list pdta ends one: tables of presets, of their zones, of the generators and modulators of
// these, then the same of instruments, which the presets name. Each row says where its rows of the next table begin;
// a last row, which stands for nothing, says where the others end.

std::size_t number(std::string_view bytes, std::size_t at, std::size_t size)
{
    std::size_t n = 0;
    while (size-- > 0)
        n = n << 8 | static_cast<unsigned char>(bytes[at + size]);
    return n;
}

void set_number(std::string& bytes, std::size_t at, std::size_t size, std::size_t n)
{
    for (; size > 0; --size, n >>= 8)
        bytes[at++] = static_cast<char>(n & 0xFF);
}

constexpr std::size_t header = 8;  // of a chunk: its name and size

std::optional<std::string_view> chunk(std::string_view& rest, std::string_view name)
{
    if (!rest.starts_with(name) || rest.size() < header)
        return {};
    std::size_t const size = number(rest, name.size(), 4);
    if (size > rest.size() - header)
        return {};
    auto const content = rest.substr(header, size);
    rest.remove_prefix(header + size);
    return content;
}

struct Table {
    std::string_view name;
    std::size_t width;  // of a row, bytes
    std::string_view rows{};
    std::string kept{};

    std::size_t n_rows() const { return rows.size() / width; }
    std::size_t n_kept() const { return kept.size() / width; }
    void keep(std::size_t row) { kept += rows.substr(row * width, width); }
};

// A column of a table that counts rows of the next one.
struct Column {
    Table& table;
    std::size_t at;
    Table& counted;

    // Of the row: it holds again once its rows of the counted table are kept behind the ones that are.
    bool keep(std::size_t row, auto keep_counted)
    {
        std::size_t const first = number(table.rows, row * table.width + at, 2);
        std::size_t const last = number(table.rows, (row + 1) * table.width + at, 2);
        if (first > last || last >= counted.n_rows())
            return false;
        set_number(table.kept, table.kept.size() - table.width + at, 2, counted.n_kept());
        for (std::size_t k = first; k < last; ++k)
            if (!keep_counted(k))
                return false;
        return true;
    }
};

// The tables of the presets.
class Presets {
  public:
    // Takes them from the front.
    bool read(std::string_view& pdta)
    {
        for (Table* const table : all_) {
            auto const rows = chunk(pdta, table->name);
            if (!rows || rows->size() < table->width || rows->size() % table->width != 0)
                return false;
            table->rows = *rows;
        }
        return true;
    }

    // False if a row points at none.
    bool keep(Programs const& programs)
    {
        for (std::size_t p = 0; p + 1 < presets_.n_rows(); ++p) {
            std::size_t const program = number(presets_.rows, p * presets_.width + program_at, 2);
            if (program >= programs.size() || !programs[program])
                continue;
            presets_.keep(p);
            if (!Column{presets_, zone_at, zones_}.keep(p, [this](std::size_t z) { return keep_zone(z); }))
                return false;
        }
        for (Table* const table : all_)
            table->keep(table->n_rows() - 1);
        end({presets_, zone_at, zones_});
        end({zones_, 0, generators_});
        end({zones_, 2, modulators_});
        return true;
    }

    std::string kept() const
    {
        std::string text;
        for (Table const* const table : all_) {
            text += std::string(table->name) + "size";
            set_number(text, text.size() - 4, 4, table->kept.size());
            text += table->kept;
        }
        return text;
    }

  private:
    static constexpr std::size_t program_at = 20, zone_at = 24;  // columns of a preset

    bool keep_zone(std::size_t z)
    {
        zones_.keep(z);
        return Column{zones_, 0, generators_}.keep(z, [this](std::size_t g) {
            return generators_.keep(g), true;
        }) && Column{zones_, 2, modulators_}.keep(z, [this](std::size_t m) {
            return modulators_.keep(m), true;
        });
    }
    static void end(Column c)
    {
        set_number(c.table.kept, c.table.kept.size() - c.table.width + c.at, 2, c.counted.n_kept() - 1);
    }

    Table presets_{"phdr", 38}, zones_{"pbag", 4}, modulators_{"pmod", 10}, generators_{"pgen", 4};
    std::array<Table*, 4> all_{&presets_, &zones_, &modulators_, &generators_};
};

// The content of a list pdta with the presets of these programs alone.
std::optional<std::string> part_of(std::string_view pdta, Programs const& programs)
{
    std::string const name = "pdta";
    if (!pdta.starts_with(name))
        return {};
    pdta.remove_prefix(name.size());
    Presets presets;
    if (!presets.read(pdta) || !presets.keep(programs))
        return {};
    return name + presets.kept() + std::string(pdta);
}

// ---- A font as the synthesiser reads it: the file, but for the end, where its list pdta is exchanged. It seems as long
// as it is.

struct Font {
    std::ifstream file;
    std::string end;
    fluid_long_long_t end_at = 0, size = 0, at = 0;

    std::string read(std::streamoff from, std::size_t n)
    {
        std::string bytes(n, '\0');
        file.clear();
        file.seekg(from).read(bytes.data(), static_cast<std::streamsize>(n));
        return bytes;
    }

    bool cut(Programs const& programs)
    {
        file.seekg(0, std::ios::end);
        size = file.tellg();
        constexpr fluid_long_long_t first_list = 12;  // behind RIFF, its size and sfbk
        for (fluid_long_long_t list = first_list; list + 12 <= size;) {
            std::string const head = read(list, 12);
            auto const length = static_cast<fluid_long_long_t>(number(head, 4, 4));
            if (!head.starts_with("LIST") || length > size - list - 8)
                return false;
            if (head.ends_with("pdta")) {
                auto const part = part_of(read(list + 8, static_cast<std::size_t>(length)), programs);
                if (!part)
                    return false;
                end = "LISTsize" + *part;
                set_number(end, 4, 4, part->size());
                end_at = list;
                return true;
            }
            list += 8 + length;
        }
        return false;
    }
};

// FluidSynth hands on nothing but the name of a font. So load_part() puts the programs in front of it, a digit each.
void* open_font(char const* name)
{
    Programs const programs(name, Programs().size());
    auto font = std::make_unique<Font>();
    font->file.open(name + programs.size(), std::ios::binary);
    return font->file && font->cut(programs) ? font.release() : nullptr;
}

int read_font(void* to, fluid_long_long_t n, void* handle)
{
    auto& font = *static_cast<Font*>(handle);
    auto* out = static_cast<char*>(to);
    if (n < 0 || n > font.size - font.at)
        return FLUID_FAILED;
    auto const from_file = std::clamp<fluid_long_long_t>(font.end_at - font.at, 0, n);
    font.file.clear();
    font.file.seekg(font.at).read(out, from_file);
    if (n > from_file) {
        auto const rest = std::string_view(font.end).substr(
            std::min(font.end.size(), static_cast<std::size_t>(font.at + from_file - font.end_at)),
            static_cast<std::size_t>(n - from_file));
        std::fill_n(out + from_file, n - from_file, '\0');
        std::ranges::copy(rest, out + from_file);
    }
    font.at += n;
    return font.file ? FLUID_OK : FLUID_FAILED;
}

int seek_font(void* handle, fluid_long_long_t offset, int origin)
{
    auto& font = *static_cast<Font*>(handle);
    auto const at = offset + (origin == SEEK_CUR ? font.at : origin == SEEK_END ? font.size : 0);
    if (at < 0 || at > font.size)
        return FLUID_FAILED;
    font.at = at;
    return FLUID_OK;
}

}  // namespace

Programs programs_of(std::span<std::byte const> midi)
{
    Programs found(1);
    Reader file(midi);
    while (!file.at_end()) {
        bool const is_track = file.big_endian() == 0x4D54726B;  // MTrk
        auto const content = file.skip(file.big_endian());
        if (is_track)
            read_track(Reader(content), found);
    }
    return found;
}

bool load_part(fluid_settings_t* settings, fluid_synth_t* synth, char const* font, Programs const& programs)
{
    auto* const loader = new_fluid_defsfloader(settings);
    if (!loader)
        return false;
    fluid_sfloader_set_callbacks(
        loader, open_font, read_font, seek_font, [](void* handle) { return static_cast<Font*>(handle)->at; },
        [](void* handle) { return delete static_cast<Font*>(handle), int{FLUID_OK}; });
    fluid_synth_add_sfloader(synth, loader);
    return fluid_synth_sfload(synth, (programs.to_string() + font).c_str(), 1) != FLUID_FAILED;
}

}  // namespace audio
