// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the module asks of the page. Texts are UTF-8, given as a place in the module's memory and a length,
// and are read within the call. Boxes are in grid units.
#pragma once

#ifdef __wasm__
#define FROM_PAGE(name) __attribute__((import_module("page"), import_name(#name)))
#define FOR_PAGE(name) extern "C" __attribute__((export_name(#name)))
#else  // for who only reads the sources
#define FROM_PAGE(name)
#define FOR_PAGE(name) extern "C"
#endif

extern "C" {
FROM_PAGE(text) void page_text(char const* text, unsigned long length);  // the answer of an export
FROM_PAGE(repaint) void page_repaint(float x1, float y1, float x2, float y2);
FROM_PAGE(text_width)
float page_text_width(char const* text, unsigned long length, char const* font, unsigned long font_length,
                      float points,
                      float height);  // in grid units, of which the height is given
FROM_PAGE(mark) void page_mark(int kind, float x1, float y1, float x2, float y2, int rgb, int picture);
FROM_PAGE(mark_text)
void page_mark_text(float x1, float y1, int rgb, char const* text, unsigned long length, char const* font,
                    unsigned long font_length, float points);
// An item of table_words.h.
FROM_PAGE(thing)
void page_thing(int kind, int index, int role, int left, int right, int selectable, int selected,
                int group_kind, int group_index, float x1, float y1, float x2, float y2, char const* name,
                unsigned long length);
FROM_PAGE(say) void page_say(char const* sentence, unsigned long length);
FROM_PAGE(timer) void page_timer(int milliseconds);
FROM_PAGE(pointer) void page_pointer(int shape);
FROM_PAGE(entry) void page_entry(int entry, int enabled, int checked);
FROM_PAGE(entry_caption)
void page_entry_caption(int entry, int level, int checkable, char const* text, unsigned long length);
FROM_PAGE(control)
void page_control(int control, int visible, float x1, float y1, float x2, float y2, int order,
                  char const* text, unsigned long length);
FROM_PAGE(box) void page_box(int question, char const* text, unsigned long length);
FROM_PAGE(beep) void page_beep();
FROM_PAGE(time_of_day) float page_time_of_day();
FROM_PAGE(end) void page_end();
FROM_PAGE(wake) void page_wake();
// Device 0 the music, 1 the effects; command 0 file, 1 open, 2 close, 3 play, 4 rewind.
FROM_PAGE(device) void page_device(int device, int command, char const* name, unsigned long length);
FROM_PAGE(device_plays) int page_device_plays(int device);
FROM_PAGE(names) unsigned long page_names(char* bytes, unsigned long room);  // how many there are now
FROM_PAGE(keep_names) void page_keep_names(char const* bytes, unsigned long length);
}
