// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/giving_out.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QWidget>
#include <optional>

#include "desktop/binding/shown_table.h"
#include "desktop/drawings/drawing.h"
#include "desktop/drawings/picture_out.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/main.h"

namespace varnholt {
namespace {

/// Copied pictures are sharp on paper too.
constexpr double copyScale = 3;

void tell(const Form& form, int sentence, std::initializer_list<std::string> parts = {}) {
    form.platform().tell(filledIn(form.text(sentence), parts));
}

void copyLines(const Form& form, const QString& lines) {
    form.platform().setClipboard(plain(lines) + "\n");
    tell(form, Text::tableCopied, {std::to_string(lines.count(u'\n') + 1)});
}

/// Lights and the like are no pictures to take away.
bool isSign(const Drawing& drawing) {
    constexpr int largestSign = 6 * gridStep;
    return drawing.width() <= largestSign && drawing.height() <= largestSign;
}

using Suits = bool (*)(QWidget*);

QWidget* subjectIn(QWidget& window, Suits any, Suits focused) {
    QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && window.isAncestorOf(focus) && focused(focus)) return focus;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && any(widget)) return widget;
    return nullptr;
}

/// A name for the file that the drawing becomes, of what a screen reader calls it.
std::string proposedName(const Drawing& drawing) {
    QString name = drawing.accessibleName();
    for (QChar& letter : name)
        if (!letter.isLetterOrNumber() && letter != u' ') letter = u' ';
    return plain(name.simplified() + QStringLiteral(".svg"));
}

void addGiving(QMenu& menu, const Form& form, QWidget* widget, int caption,
               void (*run)(const Form&, QWidget*)) {
    QObject::connect(menu.addAction(qt(form.text(caption))), &QAction::triggered, widget,
                     [&form, widget, run] { run(form, widget); });
}

void addPictureEntries(QMenu& menu, const Form& form, QWidget* widget) {
    addGiving(menu, form, widget, Text::copyPicture, copyPicture);
    addGiving(menu, form, widget, Text::savePicture, savePicture);
}

}  // namespace

Drawing* drawingAround(QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget())
        if (auto* drawing = dynamic_cast<Drawing*>(widget); drawing != nullptr && !isSign(*drawing))
            return drawing;
    return nullptr;
}

QWidget* tableSubject(QWidget& window) {
    return subjectIn(
        window,
        [](QWidget* widget) {
            const bool isTable = dynamic_cast<ListView*>(widget) != nullptr ||
                                 dynamic_cast<GroupBox*>(widget) != nullptr;
            return isTable && !tableAround(widget).isEmpty();
        },
        [](QWidget* widget) { return !tableAround(widget).isEmpty(); });
}

QWidget* pictureSubject(QWidget& window) {
    const auto isPicture = [](QWidget* widget) { return drawingAround(widget) != nullptr; };
    return subjectIn(window, isPicture, isPicture);
}

void copyTable(const Form& form, const QWidget* widget) {
    const QString lines = tableAround(widget);
    if (lines.isEmpty()) return tell(form, Text::noTableHere);
    copyLines(form, lines);
}

bool copyShown(const Form& form, const QWidget* widget) {
    QString lines = selectedLines(widget);
    if (lines.isEmpty()) lines = tableAround(widget);
    if (lines.isEmpty()) return false;
    copyLines(form, lines);
    return true;
}

void copyPicture(const Form& form, QWidget* widget) {
    Drawing* drawing = drawingAround(widget);
    if (drawing == nullptr) return tell(form, Text::noPictureHere);
    QGuiApplication::clipboard()->setImage(imageOf(*drawing, copyScale));
    tell(form, Text::pictureCopied);
}

void savePicture(const Form& form, QWidget* widget) {
    Drawing* drawing = drawingAround(widget);
    if (drawing == nullptr) return tell(form, Text::noPictureHere);
    FileDialog dialog;
    dialog.saving = true;
    dialog.title = form.text(Text::savePicture);
    dialog.filter = form.text(Text::pictureFileFilter);
    dialog.proposedName = proposedName(*drawing);
    dialog.overwritePrompt = true;
    const std::optional<std::string> path = form.platform().chooseFile(dialog);
    if (!path) return;
    const bool written = writePicture(*drawing, qt(*path));
    tell(form, written ? Text::savedAs : Text::pictureNotSaved, {*path});
}

void addGivingOut(QMenu& menu, const Form& form, QWidget* widget) {
    if (!selectedLines(widget).isEmpty())
        addGiving(menu, form, widget, Text::copy,
                  [](const Form& f, QWidget* w) { copyShown(f, w); });
    if (!tableAround(widget).isEmpty())
        addGiving(menu, form, widget, Text::copyWholeTable,
                  [](const Form& f, QWidget* w) { copyTable(f, w); });
    if (drawingAround(widget) != nullptr) addPictureEntries(menu, form, widget);
}

void addPicturesOf(QMenu& menu, const Form& form, QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        auto* drawing = dynamic_cast<Drawing*>(widget);
        if (drawing == nullptr || !drawing->isVisible() || isSign(*drawing)) continue;
        QString name = drawing->accessibleName();
        if (name.isEmpty()) continue;
        name.replace(u'&', QStringLiteral("&&"));
        addPictureEntries(*menu.addMenu(name), form, drawing);
    }
}

}  // namespace varnholt
