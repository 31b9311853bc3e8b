// SPDX-License-Identifier: GPL-3.0-or-later
// The browser window: tool bar, address, and the page below them.
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "desktop/reading/page_widget.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/qt_text.h"
#include "tools/frmBrowser.h"

namespace varnholt {
namespace {

constexpr QSize usualSize{900, 600};

/// The page's widget as large as the window leaves it.
class PageArea : public QWidget {
 public:
    QSize sizeHint() const override { return usualSize; }
};

QWidget* addressBar(Binder& bind) {
    auto* box = static_cast<QComboBox*>(bind.widget("cboAddress"));
    // Addresses are longer than any window: the box takes the width that its label leaves.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* label = static_cast<QLabel*>(bind.widget("lblAddress"));
    label->setBuddy(box);
    box->setAccessibleName(qt(captionWords(label->text().remove(u'&').toStdString())));
    return row_(label, grow(box));
}

QWidget* toolBar(Binder& bind) {
    constexpr std::array icons{"back", "forward", "refresh", "home", "search", "stop"};
    std::vector<QWidget*> buttons;
    for (std::size_t i = 0; i < icons.size(); ++i)
        buttons.push_back(
            bind.iconButton(elementName("tbToolBar", i), QString::fromLatin1(icons[i])));
    return buttonsOf(buttons);
}

QWidget* pageArea(Binder& bind) {
    auto* area = new PageArea;
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* shown =
        dynamic_cast<PageWidget*>(&static_cast<frmBrowser*>(bind.form())->brwWebBrowser());
    QWidget* page = shown != nullptr ? shown->widget() : new QWidget;
    layout->addWidget(bind.picture("brwWebBrowser", page));
    return area;
}

}  // namespace

QWidget* makeBrowserView(Binder& bind) {
    return column(bar(group(new GroupBox, group(bind.frame("tbToolBar"), toolBar(bind)),
                            group(bind.frame("picAddress"), addressBar(bind)))),
                  passingNoticeBar(bind), grow(pageArea(bind)));
}

}  // namespace varnholt
