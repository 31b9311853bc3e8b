// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/view_pieces.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <utility>

#include "desktop/drawings/drawings.h"
#include "desktop/widgets/headed_tabs.h"
#include "desktop/widgets/notice_bar.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/feedback.h"

namespace varnholt {
namespace {

QWidget* light(Binder& bind, const std::string& image, LinkPartner partner) {
    Drawing* lamp = newLinkLight(partner, [&bind, image] {
        return bind.form() == nullptr ? std::string() : bind.form()->descriptionOf(image);
    });
    bind.drawing(image, lamp);
    lamp->refresh();
    return lamp;
}

/// Of a line with a notice in it, whether that tells something now or not, in pixels. Counted from
/// the pieces, since a line does not yet know of a piece that comes or goes.
int leastWithNotice(QLayout& line, const NoticeBar& notice) {
    const QMargins around = line.contentsMargins();
    int least = around.left() + around.right() - line.spacing();
    for (int i = 0; i < line.count(); ++i) {
        QLayoutItem& piece = *line.itemAt(i);
        if (piece.widget() == &notice)
            least += notice.leastWithText() + line.spacing();
        else if (!piece.isEmpty())
            least += piece.minimumSize().width() + line.spacing();
    }
    return least;
}

}  // namespace

QWidget* ifAny(Binder& bind, const std::string& name) {
    return bind.has(name) ? bind.widget(name) : nullptr;
}

QWidget* hint(Binder& bind, int text, std::function<bool()> condition) {
    auto* label = new TextLabel(qt(bind.text(text)));
    label->setMuted();
    label->setWordWrap(true);
    const auto refresh = [label, condition = std::move(condition)] {
        // A label without a parent would open as a window of its own.
        const bool shown = condition();
        if (!shown || label->parentWidget() != nullptr) label->setVisible(shown);
    };
    refresh();
    bind.onSettled(refresh);
    return label;
}

QWidget* warningLines(Binder& bind, std::function<std::vector<std::string>()> source) {
    auto* label = new TextLabel;
    label->setObjectName(QStringLiteral("warningLines"));
    label->setWordWrap(true);
    const QString title = qt(bind.text(Text::warningsTitle));
    const auto refresh = [label, title, source = std::move(source)] {
        QStringList lines;
        for (const std::string& warning : source()) lines << qt(warning);
        label->setText(lines.isEmpty() ? QString()
                                       : title + QStringLiteral(": ") + lines.join(u' '));
        label->setAccessibleName(label->text());
        // A label without a parent would open as a window of its own.
        if (lines.isEmpty() || label->parentWidget() != nullptr)
            label->setVisible(!lines.isEmpty());
    };
    refresh();
    bind.onSettled(refresh);
    return label;
}

QWidget* noticeBar(Binder& bind) {
    auto* bar = new NoticeBar(static_cast<QLabel*>(bind.widget("NoticeLabel")),
                              static_cast<QAbstractButton*>(bind.widget("NoticeCommand")));
    const QString stale = qt(bind.text(Text::noticeOutOfDate));
    const auto refresh = [bar, stale, text = static_cast<QLabel*>(bind.widget("NoticeLabel"))] {
        // Of older results alone the sign tells; whatever else is told is to be looked at.
        bar->setSign(text->text() == stale ? QStringLiteral("stale") : QStringLiteral("refused"));
        bar->announce();
    };
    bind.onSettled(refresh);
    return bar;
}

QWidget* firstSteps(QWidget* words, const std::vector<QWidget*>& commands) {
    return group(new GroupBox, reflow(grow(wrapped(words)), buttonsOf(commands)));
}

QWidget* headedTabs(Binder& bind, QWidget* pages, const std::vector<QWidget*>& ends) {
    QWidget* metric = bind.widget("MetricCheck");
    auto* notice = static_cast<NoticeBar*>(noticeBar(bind));
    std::vector<Piece> pieces{metric, grow(notice)};
    pieces.insert(pieces.end(), ends.begin(), ends.end());
    QWidget* line = bar(centredRowOf(pieces));
    auto* around = new QWidget;
    auto* layout = new HeadedTabsLayout(around, line, static_cast<QTabWidget*>(pages));
    // The bar keeps its place when the notice comes.
    layout->barNeeds = [line, notice] { return leastWithNotice(*line->layout(), *notice); };
    layout->onTurned = [line, metric](bool beside) {
        auto* row = static_cast<QHBoxLayout*>(line->layout());
        row->setContentsMargins(2 * gridStep, beside ? 0 : gridStep / 2, 2 * gridStep, 0);
        // Beside the tabs nothing stands in the midst of the line while there is no notice. Tab
        // keeps its order: a window begins with its units.
        row->removeWidget(metric);
        row->insertWidget(beside ? 1 : 0, metric, 0, Qt::AlignVCenter);
    };
    return around;
}

QWidget* passingNoticeBar(Binder& bind) {
    QWidget* bar = noticeBar(bind);
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(false);
    bar->setSizePolicy(policy);
    return bar;
}

QWidget* linkLights(Binder& bind) {
    return row_(light(bind, "imgLinkLight(0)", LinkPartner::zones),
                light(bind, "imgLinkLight(8)", LinkPartner::block),
                light(bind, "imgLinkLight(6)", LinkPartner::none));
}

}  // namespace varnholt
