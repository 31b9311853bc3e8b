// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/layout.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "desktop/widgets/flow_layout.h"
#include "desktop/widgets/reflow_layout.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

/// A grid of captions, fields and units.
class FieldGrid : public QWidget {
 public:
    explicit FieldGrid(const std::vector<FieldRow>& rows);

    int captionWidth() const;
    void setCaptionWidth(int width);

 protected:
    bool event(QEvent* event) override;

 private:
    void addRow(int line, const FieldRow& row, int fieldColumns);
    void addOnlyField(int line, const FieldRow& row, int fieldColumns);
    void addUnit(int line, const FieldRow& row, int fieldColumns);
    void alignCombos();

    QGridLayout* layout_;
    std::vector<QWidget*> captions_;
    std::vector<QComboBox*> combos_;
};

int mostFields(const std::vector<FieldRow>& rows) {
    std::size_t most = 1;
    for (const FieldRow& row : rows)
        if (!row.wide) most = std::max(most, row.fields.size());
    return static_cast<int>(most);
}

/// Least width of a column of figures that has others beside it.
constexpr int figureColumn = 11 * gridStep;

bool hasOwnWidth(const QWidget* widget) {
    return widget->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
}

/// Buttons and check boxes are as wide as their captions, at the left.
Qt::Alignment ownWidth(QWidget* widget) {
    const bool isButton = qobject_cast<QAbstractButton*>(widget) != nullptr;
    return isButton || hasOwnWidth(widget) ? Qt::AlignLeft : Qt::Alignment();
}

/// Texts and combos take the place that units would take.
bool takesPlace(const QWidget* field) {
    return (field->sizePolicy().horizontalPolicy() & QSizePolicy::GrowFlag) != 0 &&
           qobject_cast<const QLabel*>(field) == nullptr;
}

bool holdsFields(const std::vector<FieldRow>& rows) {
    const auto isField = [](const QWidget* field) {
        return hasOwnWidth(field) || qobject_cast<const QLineEdit*>(field) != nullptr ||
               qobject_cast<const QComboBox*>(field) != nullptr;
    };
    for (const FieldRow& row : rows)
        if (std::any_of(row.fields.begin(), row.fields.end(), isField)) return true;
    return false;
}

FieldGrid::FieldGrid(const std::vector<FieldRow>& rows) : layout_(new QGridLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setHorizontalSpacing(gridStep);
    // Lines of figures need no room for edges between them.
    layout_->setVerticalSpacing(holdsFields(rows) ? gridStep / 2 : gridStep / 4);
    const int fieldColumns = mostFields(rows);
    int line = 0;
    for (const FieldRow& row : rows) addRow(line++, row, fieldColumns);
    layout_->setColumnStretch(fieldColumns + 3, 1);
    // Rows stay together where what stands beside them is higher.
    layout_->setRowStretch(line, 1);
    // Columns of figures stand apart whatever their figures are; fields have widths of their own.
    if (fieldColumns > 1 && !holdsFields(rows))
        for (int column = 1; column <= fieldColumns; ++column)
            layout_->setColumnMinimumWidth(column, figureColumn);
}

void FieldGrid::addRow(int line, const FieldRow& row, int fieldColumns) {
    const int moreColumn = fieldColumns + 2;
    if (row.wide) {
        QWidget* wide = row.fields.front();
        layout_->addWidget(wide, line, 0, 1, fieldColumns + 4, ownWidth(wide));
        return;
    }
    if (row.caption != nullptr) {
        layout_->addWidget(row.caption, line, 0, Qt::AlignLeft | Qt::AlignVCenter);
        captions_.push_back(row.caption);
    }
    int column = 1;
    for (QWidget* field : row.fields) {
        if (takesPlace(field) && row.unit == nullptr && row.fields.size() == 1)
            addOnlyField(line, row, fieldColumns);
        else
            // Below the heads of their columns, which stand at the right.
            layout_->addWidget(
                field, line, column,
                fieldColumns > 1 && hasOwnWidth(field) ? Qt::AlignRight : Qt::Alignment());
        ++column;
    }
    if (row.unit != nullptr) addUnit(line, row, fieldColumns);
    if (row.more.empty()) return;
    std::vector<Piece> pieces(row.more.begin(), row.more.end());
    pieces.push_back(stretch());
    layout_->addWidget(rowOf(pieces), line, moreColumn, 1, 2);
}

/// A text takes the whole place, a combo as much as the widest below one another.
void FieldGrid::addOnlyField(int line, const FieldRow& row, int fieldColumns) {
    QWidget* field = row.fields.front();
    const bool keepsToItself = field->sizePolicy().horizontalPolicy() == QSizePolicy::Preferred;
    auto* combo = qobject_cast<QComboBox*>(field);
    if (combo != nullptr && keepsToItself) combos_.push_back(combo);
    const int columns = row.more.empty() ? fieldColumns + 3 : fieldColumns + 1;
    layout_->addWidget(field, line, 1, 1, columns,
                       combo == nullptr && keepsToItself && row.more.empty()
                           ? Qt::AlignLeft | Qt::AlignVCenter
                           : Qt::Alignment());
}

/// Beside the field that it belongs to, where others have one more.
void FieldGrid::addUnit(int line, const FieldRow& row, int fieldColumns) {
    const bool alone = row.fields.size() == 1 && hasOwnWidth(row.fields.front());
    const int column = alone ? 2 : fieldColumns + 1;
    mute(row.unit);
    row.unit->setProperty(unitProperty, true);
    layout_->addWidget(row.unit, line, column, 1, fieldColumns + 2 - column,
                       Qt::AlignLeft | Qt::AlignVCenter);
}

bool FieldGrid::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish) alignCombos();
    return QWidget::event(event);
}

void FieldGrid::alignCombos() {
    int widest = 0;
    for (const QComboBox* combo : combos_) widest = std::max(widest, combo->sizeHint().width());
    for (QComboBox* combo : combos_)
        if (combo->maximumWidth() != widest) combo->setMaximumWidth(widest);
}

int FieldGrid::captionWidth() const {
    int width = 0;
    for (const QWidget* caption : captions_)
        if (!caption->isHidden()) width = std::max(width, caption->sizeHint().width());
    return width;
}

void FieldGrid::setCaptionWidth(int width) {
    if (layout_->columnMinimumWidth(0) != width) layout_->setColumnMinimumWidth(0, width);
}

/// Keeps the captions of several grids equally wide, whatever their texts and the font become.
class CaptionAligner : public QObject {
 public:
    CaptionAligner(QObject* parent, std::vector<FieldGrid*> grids)
        : QObject(parent), grids_(std::move(grids)) {
        // Not at once: a widget that is asked for its size is dressed for it, and dressed again
        // with every piece of the window that it is built into.
        for (FieldGrid* grid : grids_) grid->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish) align();
        return QObject::eventFilter(watched, event);
    }

 private:
    void align() {
        int widest = 0;
        for (const FieldGrid* grid : grids_) widest = std::max(widest, grid->captionWidth());
        for (FieldGrid* grid : grids_) grid->setCaptionWidth(widest);
    }

    std::vector<FieldGrid*> grids_;
};

/// A column within another hands its grids over: two that keep different widths would never agree.
void dissolveAligner(const QWidget* column) {
    std::vector<CaptionAligner*> aligners;
    for (QObject* child : column->children())
        if (auto* aligner = dynamic_cast<CaptionAligner*>(child)) aligners.push_back(aligner);
    for (const CaptionAligner* aligner : aligners) delete aligner;
}

void collectGrids(QWidget* piece, std::vector<FieldGrid*>& grids) {
    if (auto* grid = dynamic_cast<FieldGrid*>(piece)) {
        grids.push_back(grid);
    } else if (auto* group = dynamic_cast<GroupBox*>(piece)) {
        if (group->content() != nullptr) collectGrids(group->content(), grids);
    } else if (qobject_cast<QVBoxLayout*>(piece->layout()) != nullptr) {
        dissolveAligner(piece);
        for (int i = 0; i < piece->layout()->count(); ++i)
            if (QWidget* inner = piece->layout()->itemAt(i)->widget()) collectGrids(inner, grids);
    }
}

constexpr const char* expandsProperty = "expands";
constexpr const char* passingProperty = "passing";

/// The place of a label in a column: none while it says nothing, though it is not hidden.
class PassingItem : public QWidgetItem {
 public:
    explicit PassingItem(QLabel* label) : QWidgetItem(label), label_(label) {}
    bool isEmpty() const override { return QWidgetItem::isEmpty() || label_->text().isEmpty(); }
    void setGeometry(const QRect& rect) override {
        if (label_->text().isEmpty())
            label_->setGeometry(rect.x(), rect.y(), rect.width(), 0);
        else
            QWidgetItem::setGeometry(rect);
    }

 private:
    QLabel* label_;
};

/// What a label takes with the pieces around it, or null for other pieces.
QLayoutItem* passingItem(QWidget* piece, QWidget* column) {
    if (!piece->property(passingProperty).toBool()) return nullptr;
    piece->setParent(column);
    return new PassingItem(static_cast<QLabel*>(piece));
}

/// Whether a piece makes use of more height than it needs.
bool expands(const Piece& piece) {
    if (piece.stretch > 0) return true;
    if (piece.widget == nullptr) return false;
    const QVariant told = piece.widget->property(expandsProperty);
    if (told.isValid()) return told.toBool();
    const bool isLeaf = piece.widget->layout() == nullptr;
    return isLeaf && (piece.widget->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
}

bool anyExpands(const std::vector<Piece>& pieces) {
    return std::any_of(pieces.begin(), pieces.end(), expands);
}

template <class Box>
Box* emptyBox(QWidget* widget) {
    auto* layout = new Box(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gridStep);
    return layout;
}

void appendInOrder(QWidget* widget, std::vector<QWidget*>& order);

void appendInOrder(QLayout* layout, std::vector<QWidget*>& order) {
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() != nullptr)
            appendInOrder(item->widget(), order);
        else if (item->layout() != nullptr)
            appendInOrder(item->layout(), order);
    }
}

void appendInOrder(QWidget* widget, std::vector<QWidget*>& order) {
    if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
        order.push_back(tabs->tabBar());
        for (int page = 0; page < tabs->count(); ++page) appendInOrder(tabs->widget(page), order);
    } else if (auto* split = qobject_cast<QSplitter*>(widget)) {
        for (int i = 0; i < split->count(); ++i) appendInOrder(split->widget(i), order);
    } else if (auto* area = qobject_cast<QScrollArea*>(widget)) {
        appendInOrder(area->widget(), order);
    } else if (widget->focusPolicy() != Qt::NoFocus) {
        order.push_back(widget);
    } else if (widget->layout() != nullptr) {
        appendInOrder(widget->layout(), order);
    }
}

}  // namespace

Piece stretch(int share) { return {nullptr, share}; }

Piece grow(QWidget* widget, int share) { return {widget, share}; }

QWidget* columnOf(const std::vector<Piece>& pieces) {
    auto* column = new QWidget;
    auto* layout = emptyBox<QVBoxLayout>(column);
    for (const Piece& piece : pieces) {
        if (piece.widget == nullptr)
            layout->addStretch(piece.stretch);
        else if (QLayoutItem* place = passingItem(piece.widget, column))
            layout->addItem(place);
        else
            layout->addWidget(piece.widget, std::max(piece.stretch, expands(piece) ? 1 : 0),
                              ownWidth(piece.widget));
    }
    // Where nothing grows the pieces stay together at the top.
    if (!anyExpands(pieces)) layout->addStretch(1);
    column->setProperty(expandsProperty, anyExpands(pieces));
    std::vector<FieldGrid*> grids;
    collectGrids(column, grids);
    if (grids.size() > 1) new CaptionAligner(column, std::move(grids));
    return column;
}

QWidget* rowOf(const std::vector<Piece>& pieces) {
    auto* row = new QWidget;
    auto* layout = emptyBox<QHBoxLayout>(row);
    bool grows = false;
    for (const Piece& piece : pieces) {
        if (piece.widget == nullptr) {
            layout->addStretch(piece.stretch);
            continue;
        }
        const bool tall = expands({piece.widget});
        const bool isCard = dynamic_cast<GroupBox*>(piece.widget) != nullptr;
        const bool isPlain = piece.widget->layout() == nullptr;
        grows = grows || tall;
        // Cards beside one another end together; other pieces stand at the top.
        const bool fills = tall || isCard || isPlain || piece.stretch > 0;
        layout->addWidget(piece.widget, piece.stretch, fills ? Qt::Alignment() : Qt::AlignTop);
    }
    row->setProperty(expandsProperty, grows);
    return row;
}

QWidget* reflowOf(const std::vector<Piece>& pieces) {
    auto* around = new QWidget;
    auto* layout = new ReflowLayout(around);
    bool grows = false;
    for (const Piece& piece : pieces) {
        if (piece.widget == nullptr) continue;
        const bool tall = expands({piece.widget});
        grows = grows || tall;
        layout->addPiece(piece.widget, piece.stretch, tall);
    }
    around->setProperty(expandsProperty, grows);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    around->setSizePolicy(policy);
    return around;
}

QWidget* centredRowOf(const std::vector<Piece>& pieces) {
    QWidget* row = rowOf(pieces);
    for (const Piece& piece : pieces)
        if (piece.widget != nullptr) row->layout()->setAlignment(piece.widget, Qt::AlignVCenter);
    return row;
}

QWidget* gridOf(const std::vector<FieldRow>& rows) { return new FieldGrid(rows); }

FieldRow titled(GroupBox* frame, FieldRow heads) {
    heads.caption = frame->takeTitle();
    return heads;
}

QWidget* groupOf(GroupBox* frame, const std::vector<Piece>& pieces) {
    frame->setContent(columnOf(pieces));
    frame->setProperty(expandsProperty, anyExpands(pieces));
    return frame;
}

QWidget* buttonsOf(const std::vector<QWidget*>& buttons) {
    auto* box = new QWidget;
    auto* layout = new FlowLayout(box);
    for (QWidget* button : buttons)
        if (button != nullptr) layout->addWidget(button);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    box->setSizePolicy(policy);
    box->setProperty(expandsProperty, false);
    return box;
}

QWidget* wrapped(QWidget* label) {
    if (auto* text = qobject_cast<QLabel*>(label)) {
        text->setWordWrap(true);
        text->setMinimumWidth(240);
    }
    return label;
}

QWidget* sentences(QWidget* label) {
    asSentence(label);
    return wrapped(label);
}

QWidget* passing(QWidget* label) {
    label->setProperty(passingProperty, qobject_cast<QLabel*>(label) != nullptr);
    return label;
}

QWidget* closeTogether(QWidget* column) {
    column->layout()->setSpacing(0);
    return column;
}

void setReadingOrder(QWidget* view) {
    std::vector<QWidget*> order;
    appendInOrder(view, order);
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace varnholt
