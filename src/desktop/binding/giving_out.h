// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/form.h"

class QMenu;
class QWidget;

namespace varnholt {

class Drawing;

// What a window gives away of what it shows: tables as text, drawings as pictures. Each says in a
// line what came of it.

/// The drawing that the widget is or belongs to; null for none.
Drawing* drawingAround(QWidget* widget);

/// What a command about tables or pictures is about in a window: where the keyboard is, else the
/// first one on show; null where there is none.
QWidget* tableSubject(QWidget& window);
QWidget* pictureSubject(QWidget& window);

/// Copies the table around the widget, heads and all; says so where there is none.
void copyTable(const Form& form, const QWidget* widget);
/// What Ctrl+C does where nothing takes it: the selected lines of a list, else the table around.
/// False where there is nothing to copy.
bool copyShown(const Form& form, const QWidget* widget);
void copyPicture(const Form& form, QWidget* widget);
/// Asks for the file and writes the drawing.
void savePicture(const Form& form, QWidget* widget);

/// The commands that there are for the widget.
void addGivingOut(QMenu& menu, const Form& form, QWidget* widget);
/// A menu for every picture on show in the window, by its name.
void addPicturesOf(QMenu& menu, const Form& form, QWidget& window);

}  // namespace varnholt
