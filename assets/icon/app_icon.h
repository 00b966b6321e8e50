// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

// The icon of the windows, in pictures of 16, 22, 24, 32, 48 and 64 pixels. It takes about a tenth of a
// millisecond: the pixels lie in the executable as they are, no drawing is parsed and no picture unpacked.
// A QGuiApplication must exist.
QIcon app_icon();
