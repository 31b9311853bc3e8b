// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/window_places.h"

#include <QSettings>
#include <algorithm>

#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

const QString geometryKey = QStringLiteral("geometry");
const QString maximisedKey = QStringLiteral("maximised");
const QString pagesGroup = QStringLiteral("pages");

/// The entries of one window, while it lasts.
class Group {
 public:
    Group(QSettings& settings, const QString& name) : settings_(settings) {
        settings_.beginGroup(name);
    }
    ~Group() { settings_.endGroup(); }
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

 private:
    QSettings& settings_;
};

}  // namespace

WindowPlaces::WindowPlaces(const std::string& file)
    : settings_(std::make_unique<QSettings>(qt(file), QSettings::IniFormat)) {}

WindowPlaces::~WindowPlaces() = default;

std::optional<WindowPlace> WindowPlaces::placeOf(const std::string& form) const {
    const Group window(*settings_, qt(form));
    WindowPlace place;
    place.geometry = settings_->value(geometryKey).toRect();
    if (!place.geometry.isValid()) return std::nullopt;
    place.maximised = settings_->value(maximisedKey).toBool();
    const Group pages(*settings_, pagesGroup);
    for (const QString& pane : settings_->childKeys())
        place.pages[plain(pane)] = settings_->value(pane).toInt();
    return place;
}

void WindowPlaces::keep(const std::string& form, const WindowPlace& place) {
    const Group window(*settings_, qt(form));
    settings_->setValue(geometryKey, place.geometry);
    settings_->setValue(maximisedKey, place.maximised);
    const Group pages(*settings_, pagesGroup);
    for (const auto& [pane, page] : place.pages) settings_->setValue(qt(pane), page);
}

QRect fittedInto(const QRect& room, const QRect& wanted) {
    const QSize size = wanted.size().boundedTo(room.size());
    const QPoint last(room.right() - size.width() + 1, room.bottom() - size.height() + 1);
    return {QPoint(std::clamp(wanted.left(), room.left(), last.x()),
                   std::clamp(wanted.top(), room.top(), last.y())),
            size};
}

}  // namespace varnholt
