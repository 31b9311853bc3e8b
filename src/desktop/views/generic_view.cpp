// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
#include <QTabWidget>
#include <algorithm>
#include <cctype>
#include <memory>
#include <set>

#include "desktop/binding/binder.h"
#include "desktop/views/view_registry.h"
#include "desktop/widgets/layout.h"

namespace varnholt {
namespace {

using Kind = ControlKind;

bool isField(const Control& control) {
    switch (control.kind()) {
        case Kind::text:
        case Kind::richText:
        case Kind::combo:
        case Kind::list:
        case Kind::slider:
        case Kind::date:
            return true;
        default:
            return false;
    }
}

/// "FL" of "FLInletTempText(0)": the capitals before the last one, which begins the name.
std::string prefixOf(const std::string& name) {
    std::size_t capitals = 0;
    while (capitals < name.size() && std::isupper(static_cast<unsigned char>(name[capitals])) != 0)
        ++capitals;
    return capitals < 2 ? std::string() : name.substr(0, capitals - 1);
}

class GenericView : public std::enable_shared_from_this<GenericView> {
 public:
    explicit GenericView(Binder& bind) : bind_(bind), form_(*bind.form()) {
        for (const auto& control : form_.controls())
            for (const std::string& companion :
                 {control->label(), control->unitLabel(), control->upDown()})
                if (isField(*control) && form_.has(companion)) claimed_.insert(companion);
    }

    QWidget* make() {
        const Control* tabs = firstOf(Kind::tabs);
        if (tabs == nullptr) return column(grow(new ScrollPage(padded(contentOf(top())))));
        return tabbed(*tabs);
    }

 private:
    using Controls = std::vector<const Control*>;

    const Control* firstOf(Kind kind) const {
        for (const auto& control : form_.controls())
            if (control->kind() == kind) return control.get();
        return nullptr;
    }

    Controls top() const {
        Controls found;
        for (const auto& control : form_.controls())
            if (control->container().empty()) found.push_back(control.get());
        return found;
    }

    Controls in(const std::string& frame) const {
        Controls found;
        for (const auto& control : form_.controls())
            if (control->container() == frame) found.push_back(control.get());
        return found;
    }

    static QWidget* padded(QWidget* content) {
        content->layout()->setContentsMargins(2 * gridStep, 2 * gridStep, 2 * gridStep,
                                              2 * gridStep);
        return content;
    }

    /// The pages in the order in which their prefixes come up; what has none stands above.
    QWidget* tabbed(const Control& tabs) {
        std::vector<std::string> prefixes;
        for (const Control* control : top()) {
            const std::string prefix = prefixOf(control->name());
            const bool known =
                std::find(prefixes.begin(), prefixes.end(), prefix) != prefixes.end();
            if (control != &tabs && !prefix.empty() && !known) prefixes.push_back(prefix);
        }
        if (prefixes.size() != tabs.items().size()) return withTabsApart(tabs);
        Controls above;
        std::vector<Controls> pages(prefixes.size());
        for (const Control* control : top()) {
            if (control == &tabs) continue;
            const auto page =
                std::find(prefixes.begin(), prefixes.end(), prefixOf(control->name()));
            if (page == prefixes.end())
                above.push_back(control);
            else
                pages[static_cast<std::size_t>(page - prefixes.begin())].push_back(control);
        }
        std::vector<Piece> pieces;
        if (!above.empty()) pieces.push_back(padded(contentOf(above)));
        pieces.push_back(grow(bind_.tabs(tabs.name(), makersOf(pages))));
        return columnOf(pieces);
    }

    /// Pages are built when they are looked at: until then this object is kept.
    std::vector<PartMaker> makersOf(const std::vector<Controls>& pages) {
        std::vector<PartMaker> makers;
        makers.reserve(pages.size());
        for (const Controls& page : pages)
            makers.emplace_back(
                [self = shared_from_this(), page] { return padded(self->contentOf(page)); });
        return makers;
    }

    /// The pages' contents cannot be told from the names: everything stands on one page.
    QWidget* withTabsApart(const Control& tabs) {
        Controls others;
        for (const Control* control : top())
            if (control != &tabs) others.push_back(control);
        bind_.tabs(tabs.name(), {});
        return column(bind_.widget(tabs.name()), grow(new ScrollPage(padded(contentOf(others)))));
    }

    QWidget* contentOf(const Controls& controls) {
        std::vector<Piece> pieces;
        std::vector<FieldRow> rows;
        std::vector<QWidget*> line;
        const auto endRows = [&] {
            if (!rows.empty()) pieces.emplace_back(gridOf(rows));
            rows.clear();
        };
        const auto endLine = [&] {
            if (!line.empty()) pieces.emplace_back(buttonsOf(line));
            line.clear();
        };
        for (const Control* control : controls) {
            if (claimed_.count(control->name()) > 0 || done_.count(control->name()) > 0) continue;
            done_.insert(control->name());
            const bool inLine = control->kind() == Kind::button || control->kind() == Kind::image ||
                                control->kind() == Kind::upDown;
            if (inLine) {
                endRows();
                line.push_back(bind_.widget(control->name()));
                continue;
            }
            endLine();
            if (control->kind() == Kind::frame) {
                endRows();
                pieces.emplace_back(
                    group(bind_.frame(control->name()), contentOf(in(control->name()))));
            } else {
                rows.push_back(rowFor(*control));
            }
        }
        endRows();
        endLine();
        return columnOf(pieces);
    }

    FieldRow rowFor(const Control& control) {
        const std::string& name = control.name();
        if (isField(control)) return bind_.row(name);
        if (control.kind() != Kind::label) return bind_.wide(bind_.widget(name));
        const std::string stem = name.substr(0, name.find('('));
        if (stem != name && isLabel(stem + "(2)") && isLabel(stem + "(1)")) {
            for (const char* index : {"(0)", "(1)", "(2)"}) done_.insert(stem + index);
            return bind_.results(stem);
        }
        if (stem != name && isLabel(stem + "(1)") && isLabel(stem + "(0)")) {
            for (const char* index : {"(0)", "(1)"}) done_.insert(stem + index);
            FieldRow row;
            row.fields = {bind_.widget(stem + "(0)"), bind_.widget(stem + "(1)")};
            return row;
        }
        return bind_.wide(wrapped(bind_.widget(name)));
    }

    bool isLabel(const std::string& name) const {
        return form_.has(name) && form_.control(name).kind() == Kind::label;
    }

    Binder& bind_;
    Form& form_;
    /// What goes along with a field is not laid out by itself.
    std::set<std::string> claimed_;
    std::set<std::string> done_;
};

}  // namespace

QWidget* makeGenericView(Binder& bind) { return std::make_shared<GenericView>(bind)->make(); }

}  // namespace varnholt
