// SPDX-License-Identifier: GPL-3.0-or-later
//
// A help panel for assistive technologies: a document to read, with an action that closes it as a click does.
#pragma once

// Behind the application, whose own objects would come first. May be called again.
void install_accessible_panels();
