// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page_reader.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"
#include "forms/texts.h"

namespace varnholt {
namespace {

std::string asHtml(const std::string& text) {
    std::string page;
    for (const char c : text) {
        if (c == '<')
            page += "&lt;";
        else if (c == '&')
            page += "&amp;";
        else
            page += c;
    }
    return page;
}

std::size_t sizeOf(std::istream& file) {
    file.seekg(0, std::ios::end);
    const auto end = file.tellg();
    file.seekg(0);
    return end < 0 ? 0 : static_cast<std::size_t>(end);
}

}  // namespace

PageReader::PageReader(PageEvents& events, PagePlaces places)
    : events_(events), places_(std::move(places)) {}

void PageReader::navigate(const std::string& text) {
    PageAddress address = pageAddressOf(text, current_.file);
    switch (address.kind) {
        case PageAddress::Kind::none:
            return;
        case PageAddress::Kind::refused:
            return events_.refused(PageRefusal::address, text);
        case PageAddress::Kind::web:
            return events_.refused(PageRefusal::outside, address.url);
        case PageAddress::Kind::local:
            return begin(Pending::next, 0, std::move(address));
    }
}

void PageReader::begin(Pending how, std::size_t place, PageAddress address) {
    pending_ = how;
    wanted_ = place;
    next_ = std::move(address);
    begun();
}

bool PageReader::step(int by) {
    const bool past = by < 0 ? place_ == 0 : place_ + 1 >= history_.size();
    if (past) return false;
    const std::size_t place = by < 0 ? place_ - 1 : place_ + 1;
    begin(Pending::step, place, history_[place]);
    return true;
}

void PageReader::refresh() {
    if (!history_.empty()) begin(Pending::step, place_, current_);
}

/// The page's bytes; those of the error page when it cannot be read.
std::string PageReader::read(const PageAddress& address, bool& tooLarge) const {
    if (isFolder(address.file)) return errorPage(address);
    const std::unique_ptr<std::istream> file = openInput(address.file);
    if (!file) return errorPage(address);
    tooLarge = sizeOf(*file) > largestPage;
    if (tooLarge) return errorPage(address);
    try {
        return readWholeFile(address.file);
    } catch (const RunTimeError&) {
        return errorPage(address);
    }
}

std::string PageReader::errorPage(const PageAddress& address) const {
    return "<!DOCTYPE html><html><head><title>" + asHtml(places_.errorTitle) +
           "</title></head><body><h1>" + asHtml(places_.errorTitle) + "</h1><p>" +
           asHtml(filledIn(places_.errorText, {address.shown()})) + "</p></body></html>";
}

void PageReader::finish() {
    if (const Pending how = std::exchange(pending_, Pending::nothing); how != Pending::nothing) {
        if (how == Pending::next) {
            if (!history_.empty()) history_.resize(place_ + 1);
            history_.push_back(next_);
            wanted_ = history_.size() - 1;
        }
        place_ = wanted_;
        current_ = next_;
        bool tooLarge = false;
        const std::string bytes = read(current_, tooLarge);
        title_ = titleOf(bytes);
        if (title_.empty()) title_ = fileNameOf(current_.file);
        show(current_, bytes);
        if (tooLarge) events_.refused(PageRefusal::tooLarge, current_.shown());
        events_.navigateComplete(current_.shown());
        events_.downloadComplete();
    }
    if (ticking_) events_.tick();
}

/// Leaves the account of its source when its window closes.
class ReadPages::Engine : public PageReader {
 public:
    Engine(ReadPages& source, PageEvents& events, const PagePlaces& places)
        : PageReader(events, places), source_(&source) {
        source.engines_.push_back(this);
    }
    ~Engine() override {
        if (source_ != nullptr) std::erase(source_->engines_, this);
    }
    void forget() { source_ = nullptr; }

 private:
    ReadPages* source_;
};

ReadPages::~ReadPages() {
    for (Engine* engine : engines_) engine->forget();
}

std::unique_ptr<PageEngine> ReadPages::newEngine(PageEvents& events, const PagePlaces& places) {
    return std::make_unique<Engine>(*this, events, places);
}

void ReadPages::settle() {
    const std::vector<Engine*> engines = engines_;
    for (Engine* engine : engines)
        if (std::count(engines_.begin(), engines_.end(), engine) > 0) engine->finish();
}

}  // namespace varnholt
