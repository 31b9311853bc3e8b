// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

namespace varnholt {

/// Captions over the columns of a list whose columns are made of blanks.
class ColumnHeads : public QWidget {
 public:
    /// A caption over the list's characters from `first` up to `last`, in one of two lines.
    struct Head {
        QWidget* label;
        int first, last;
        int line = 1;
        bool left = false;  ///< else centred
    };

    ColumnHeads(QWidget* list, std::vector<Head> heads);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void place();
    QRect wantedPlace(const Head& head) const;
    double columnAt(int character) const;

    QWidget* list_;
    std::vector<Head> heads_;
};

}  // namespace varnholt
