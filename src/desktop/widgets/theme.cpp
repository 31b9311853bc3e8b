// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/theme.h"

#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QWidget>
#include <utility>
#include <vector>

#include "desktop/widgets/house_style.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/tabular_faces.h"

static void loadPictures() { Q_INIT_RESOURCE(pictures); }

namespace varnholt {
namespace {

QPalette paletteOf(const Look& look) {
    QPalette palette;
    palette.setColor(QPalette::Window, look.window);
    palette.setColor(QPalette::WindowText, look.ink);
    palette.setColor(QPalette::Base, look.field);
    palette.setColor(QPalette::AlternateBase, look.surface);
    palette.setColor(QPalette::Text, look.ink);
    palette.setColor(QPalette::PlaceholderText, look.muted);
    palette.setColor(QPalette::Button, look.surface);
    palette.setColor(QPalette::ButtonText, look.ink);
    palette.setColor(QPalette::BrightText, look.alarm);
    palette.setColor(QPalette::ToolTipBase, look.surface);
    palette.setColor(QPalette::ToolTipText, look.ink);
    palette.setColor(QPalette::Highlight, look.accent);
    palette.setColor(QPalette::HighlightedText, look.onAccent);
    palette.setColor(QPalette::Link, look.accent);
    palette.setColor(QPalette::LinkVisited, look.accent);
    palette.setColor(QPalette::Light, look.field);
    palette.setColor(QPalette::Midlight, look.hairline);
    palette.setColor(QPalette::Mid, look.line);
    palette.setColor(QPalette::Dark, look.muted);
    palette.setColor(QPalette::Shadow, look.pipe);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look.disabled);
    return palette;
}

QString sheetOf(const Look& look) {
    QFile file(QStringLiteral(":/house.qss"));
    QString sheet = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    // Longer names first, so that no name is cut by another that begins it.
    const std::vector<std::pair<const char*, QString>> names{
        {"@scheme", look.dark ? QStringLiteral("dark") : QStringLiteral("light")},
        {"@heatingWash", look.heatingWash.name()},
        {"@coolingWash", look.coolingWash.name()},
        {"@onAccent", look.onAccent.name()},
        {"@disabled", look.disabled.name()},
        {"@hairline", look.hairline.name()},
        {"@cooling", look.cooling.name()},
        {"@heating", look.heating.name()},
        {"@surface", look.surface.name()},
        {"@onStale", look.onStale.name()},
        {"@window", look.window.name()},
        {"@accent", look.accent.name()},
        {"@stale", look.stale.name()},
        {"@alarm", look.alarm.name()},
        {"@field", look.field.name()},
        {"@muted", look.muted.name()},
        {"@line", look.line.name()},
        {"@ink", look.ink.name()},
    };
    for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour);
    return sheet;
}

/// The language's font when the machine has it, else the house's own, in the desktop's size.
QFont houseFont(const QString& fontFace) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QStringList families{QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                         QStringLiteral("DejaVu Sans")};
    if (QFontDatabase::hasFamily(fontFace)) families.prepend(fontFace);
    font.setFamilies(families);
    // Inter runs wide: the desktop's size in points suits it, but not below a legible one.
    font.setPointSizeF(std::max(9.0, font.pointSizeF()));
    return font;
}

constexpr const char* dressedProperty = "dressed";

void wear(const Look& look) {
    QApplication::setPalette(paletteOf(look));
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->property(dressedProperty).toBool()) dress(*window);
}

/// Looks at the desktop's own palette again when the desktop says that its theme has changed.
class DesktopFollower : public QObject {
 public:
    explicit DesktopFollower(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
    }

    void follow() {
        following_ = true;
        QApplication::setPalette(QPalette());
        wear(lookOf(QGuiApplication::palette()));
        following_ = false;
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ThemeChange && !following_) follow();
        return QObject::eventFilter(watched, event);
    }

 private:
    bool following_ = false;
};

}  // namespace

void applyTheme(QApplication& application, Scheme scheme, const QString& fontFace) {
    loadPictures();
    const bool desktopIsDark = lookOf(QGuiApplication::palette()).dark;
    QApplication::setStyle(new HouseStyle);
    const QFont font = houseFont(fontFace);
    registerTabularFaces(font);
    QApplication::setFont(font);
    if (scheme == Scheme::followDesktop) {
        wear(desktopIsDark ? darkLook() : lightLook());
        new DesktopFollower(application);
    } else {
        wear(scheme == Scheme::dark ? darkLook() : lightLook());
    }
}

void dress(QWidget& window) {
    window.setProperty(dressedProperty, true);
    window.setStyleSheet(sheetOf(lookOf(QApplication::palette())));
}

}  // namespace varnholt
