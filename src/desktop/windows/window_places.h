// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <map>
#include <memory>
#include <optional>
#include <string>

class QSettings;

namespace varnholt {

/// Where a person has left a window, and which of its pages were in front.
struct WindowPlace {
    QRect geometry;
    bool maximised = false;
    std::map<std::string, int> pages;  ///< by the name of their pane

    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

/// The places of the windows by their forms' names, from session to session. They are a
/// convenience: where their file cannot be read or written the program works without it, and says
/// nothing.
class WindowPlaces {
 public:
    /// @param file  where they are kept
    explicit WindowPlaces(const std::string& file);
    ~WindowPlaces();

    /// Nothing for a window that has never been open, or whose entry is no place.
    std::optional<WindowPlace> placeOf(const std::string& form) const;
    void keep(const std::string& form, const WindowPlace& place);

 private:
    std::unique_ptr<QSettings> settings_;
};

/// A place as near to the remembered one as the room allows: no larger than it, and inside it.
QRect fittedInto(const QRect& room, const QRect& wanted);

}  // namespace varnholt
