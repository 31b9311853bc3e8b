// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>

namespace varnholt {

/// A text that its copies share, so that the project, each of its earlier states and the field that
/// shows it hold it once, however long it is. Another text takes its place as a whole.
class SharedText {
 public:
    SharedText() = default;
    SharedText(std::string text)  // NOLINT(google-explicit-constructor)
        : text_(text.empty() ? nullptr : std::make_shared<const std::string>(std::move(text))) {}
    SharedText(const char* text)  // NOLINT(google-explicit-constructor)
        : SharedText(std::string(text)) {}

    /// Lives as long as this object or a copy of it holds the text.
    const std::string& string() const {
        static const std::string nothing;
        return text_ == nullptr ? nothing : *text_;
    }
    operator const std::string&() const {  // NOLINT(google-explicit-constructor)
        return string();
    }

    /// Whether both are one text in memory, which is more than being equal.
    bool isSameAs(const SharedText& other) const { return text_ == other.text_; }
    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.isSameAs(b) || a.string() == b.string();
    }
    friend bool operator==(const SharedText& a, const std::string& b) { return a.string() == b; }
    friend bool operator==(const SharedText& a, const char* b) { return a.string() == b; }

 private:
    std::shared_ptr<const std::string> text_;  ///< none for an empty text
};

}  // namespace varnholt
