// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above and below the pages of every design.
#include <QLayout>
#include <QTabWidget>

#include "design/ground_design.h"
#include "desktop/binding/bound_button.h"
#include "desktop/views/design_pages.h"
#include "desktop/views/length_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/desktop.h"

namespace varnholt {
namespace {

/// The page of the results carries the sign of older ones in its tab, and so does the button that
/// brings them up to date, wherever one works.
void markResults(Binder& bind, QWidget* pages, BoundButton& calculate) {
    auto* tabs = qobject_cast<QTabWidget*>(pages);
    // No higher than the words, so that no page moves when it comes.
    const int sign = tabs->fontMetrics().ascent();
    tabs->setIconSize({sign, sign});
    const QString words = qt(bind.text(Text::staleResults));
    const auto refresh = [tabs, words, &bind, &calculate] {
        const auto* design = static_cast<const GroundDesign*>(bind.form());
        const bool stale =
            design != nullptr && design->lengthSummary().state == LengthSummary::State::stale;
        calculate.setOlder(stale);
        if (stale == !tabs->tabIcon(0).isNull()) return;
        tabs->setTabIcon(0, stale ? houseIcon(QStringLiteral("stale")) : QIcon());
        tabs->setTabToolTip(0, stale ? words : QString());
    };
    refresh();
    bind.onSettled(refresh);
}

}  // namespace

QWidget* designWindow(Binder& bind, QWidget* pages) {
    QWidget* calculate = bind.primary("CACalculateCommand");
    markResults(bind, pages, *static_cast<BoundButton*>(bind.find("CACalculateCommand")));
    // The results take more room than the zeros that they begin with.
    QWidget* window = column(grow(headedTabs(bind, pages, {linkLights(bind)})),
                             foot(centredRow(grow(lengthStrip(bind)), calculate)));
    // A screen is low: the foot follows the page.
    window->layout()->setSpacing(0);
    return roomy(window, {1180, 700});
}

}  // namespace varnholt
