// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/dialog_control.h"

#include "desktops/qt/drawing_painter.h"
#include "desktops/qt/row_model.h"
#include "desktops/qt/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

/// Shows the caption of a label, which is broken into lines where one is too short for it.
class LabelControl final : public DialogControl {
public:
    LabelControl(Control& control, QWidget* parent) : DialogControl(control), label_(new QLabel(parent)) {
        label_->setTextFormat(Qt::PlainText);
    }
    [[nodiscard]] QWidget& widget() const override { return *label_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        label_->setAlignment((control().rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        const bool lines = label_->height() >= 2 * QFontMetrics(font).height();
        label_->setWordWrap(lines);
        label_->setText(plainCaption());
        label_->setFont(lines ? font : fitted(font, plainCaption(), 0));
    }

private:
    QLabel* label_;
};

class FrameControl final : public DialogControl {
public:
    FrameControl(Control& control, QWidget* parent) : DialogControl(control), box_(new QGroupBox(parent)) {
        box_->setFlat(false);
        box_->lower();
    }
    [[nodiscard]] QWidget& widget() const override { return *box_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        box_->setFont(fitted(font, plainCaption(), 16));
        box_->setTitle(caption());
    }

private:
    QGroupBox* box_;
};

class FieldControl final : public DialogControl {
public:
    FieldControl(Control& control, DialogHand& hand, QWidget* parent)
        : DialogControl(control), edit_(new QLineEdit(parent)) {
        QObject::connect(edit_, &QLineEdit::textEdited, edit_,
                         [this, &hand](const QString& text) { hand.retyped(this->control(), text); });
        QObject::connect(edit_, &QLineEdit::cursorPositionChanged, edit_,
                         [this](int /*from*/, int to) { this->control().caret = static_cast<std::size_t>(to); });
    }
    [[nodiscard]] QWidget& widget() const override { return *edit_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        const QSignalBlocker quiet(edit_);
        edit_->setFont(font);
        edit_->setAlignment((control().rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        const QString text = QString::fromStdString(toUnicode(control().text, control().font.face));
        const auto caret = static_cast<int>(std::min(control().caret, control().text.size()));
        if (edit_->text() != text) {
            edit_->setText(text);
            edit_->setCursorPosition(caret);
        } else if (!edit_->hasSelectedText() && edit_->cursorPosition() != caret) {
            edit_->setCursorPosition(caret);
        }
    }

private:
    QLineEdit* edit_;
};

/// A button, a radio button or a check box.
template <typename Button>
class ButtonControl final : public DialogControl {
public:
    ButtonControl(Control& control, DialogHand& hand, QWidget* parent)
        : DialogControl(control), button_(new Button(parent)) {
        if constexpr (std::is_same_v<Button, QRadioButton>) {
            // The form says which options exclude each other; by itself none does.
            auto* alone = new QButtonGroup(button_);
            alone->setExclusive(false);
            alone->addButton(button_);
        } else if constexpr (std::is_same_v<Button, QPushButton>) {
            button_->setAutoDefault(false);
        }
        QObject::connect(button_, &QAbstractButton::clicked, button_, [this, &hand] { hand.clicked(this->control()); });
    }
    [[nodiscard]] QWidget& widget() const override { return *button_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        constexpr bool kIsKey = std::is_same_v<Button, QPushButton>;
        const int indicator =
            kIsKey ? 12 : button_->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, button_) + 10;
        button_->setText(caption());
        button_->setFont(fitted(font, plainCaption(), indicator));
        if constexpr (kIsKey) {
            QPalette palette = button_->parentWidget()->palette();
            if (control().colour != KeyColour::Plain) {
                palette.setColor(QPalette::Button, Theme::forPalette(palette).keyFace(control().colour));
            }
            button_->setPalette(palette);
        } else {
            button_->setChecked(control().checked);
        }
    }

private:
    Button* button_;
};

class ListControl final : public DialogControl {
public:
    ListControl(Control& control, DialogHand& hand, QWidget* parent)
        : DialogControl(control),
          view_(new QListView(parent)),
          model_(new RowModel(control, view_)),
          delegate_(new RowDelegate(control, view_)) {
        view_->setModel(model_);
        view_->setItemDelegate(delegate_);
        view_->setUniformItemSizes(true);
        view_->setSelectionMode(QAbstractItemView::SingleSelection);
        view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view_->setTabKeyNavigation(false);
        view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        QObject::connect(view_, &QListView::clicked, view_, [this, &hand](const QModelIndex& index) {
            hand.rowClicked(this->control(), static_cast<std::size_t>(index.row()));
        });
        QObject::connect(view_, &QListView::doubleClicked, view_, [this, &hand](const QModelIndex& index) {
            hand.rowDoubleClicked(this->control(), static_cast<std::size_t>(index.row()));
        });
    }
    [[nodiscard]] QWidget& widget() const override { return *view_; }

protected:
    void show(const QFont& font, double scale) override {
        view_->setFont(font);
        delegate_->scale = scale;
        const bool changed = model_->sync();
        const ListRows* rows = control().rows;
        const bool chosen = rows != nullptr && rows->selected() < rows->count();
        const int row = chosen ? static_cast<int>(rows->selected()) : -1;
        if (changed || view_->currentIndex().row() != row) {
            view_->setCurrentIndex(model_->index(row));
            if (chosen) {
                view_->scrollTo(model_->index(row));
            } else {
                view_->clearSelection();
            }
        }
    }

private:
    QListView* view_;
    RowModel* model_;
    RowDelegate* delegate_;
};

class ChoiceControl final : public DialogControl {
public:
    ChoiceControl(Control& control, DialogHand& hand, QWidget* parent)
        : DialogControl(control), box_(new QComboBox(parent)), model_(new RowModel(control, box_)) {
        box_->setModel(model_);
        QObject::connect(box_, &QComboBox::activated, box_,
                         [this, &hand](int row) { hand.rowClicked(this->control(), static_cast<std::size_t>(row)); });
    }
    [[nodiscard]] QWidget& widget() const override { return *box_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        const QSignalBlocker quiet(box_);
        box_->setFont(font);
        model_->sync();
        const ListRows* rows = control().rows;
        const bool chosen = rows != nullptr && rows->selected() < rows->count();
        box_->setCurrentIndex(chosen ? static_cast<int>(rows->selected()) : -1);
    }

private:
    QComboBox* box_;
    RowModel* model_;
};

class PictureControl final : public DialogControl {
public:
    PictureControl(Control& control, QWidget* parent) : DialogControl(control), picture_(new PictureWidget(parent)) {}
    [[nodiscard]] QWidget& widget() const override { return *picture_; }

protected:
    void show(const QFont& /*font*/, double /*scale*/) override { picture_->setDrawing(control().drawing); }

private:
    PictureWidget* picture_;
};

class ProgressControl final : public DialogControl {
public:
    ProgressControl(Control& control, QWidget* parent) : DialogControl(control), bar_(new QProgressBar(parent)) {}
    [[nodiscard]] QWidget& widget() const override { return *bar_; }

protected:
    void show(const QFont& font, double /*scale*/) override {
        bar_->setFont(font);
        bar_->setValue(std::clamp(control().progress, 0, 100));
    }

private:
    QProgressBar* bar_;
};

}  // namespace

QString DialogControl::caption() const {
    return QString::fromStdString(toUnicode(control_.text, control_.font.face));
}

QString DialogControl::plainCaption() const {
    return caption().remove('&');
}

QFont DialogControl::fitted(QFont font, const QString& text, int margin) const {
    constexpr int kSmallest = 8;
    const int room = std::max(widget().width() - margin, 1);
    while (font.pixelSize() > kSmallest && QFontMetrics(font).horizontalAdvance(text) > room) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

void DialogControl::setTextPixels(int pixels) {
    QFont font = widget().font();
    font.setPixelSize(pixels);
    widget().setFont(font);
}

void DialogControl::sync(double scale) {
    const auto pixels = [scale](int twips) { return static_cast<int>(std::lround(twips * scale)); };
    const Place& place = control_.place;
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    QWidget& shown = widget();
    shown.setGeometry(left, top, pixels(place.left + place.width) - left, pixels(place.top + place.height) - top);
    shown.setEnabled(control_.enabled);
    shown.setVisible(control_.visible);
    const QString tip = QString::fromStdString(toUnicode(control_.tip, Face::Arial));
    if (shown.toolTip() != tip) {
        shown.setToolTip(tip);
    }
    const QString spoken = control_.spoken.empty() ? plainCaption().trimmed()
                                                   : QString::fromStdString(toUnicode(control_.spoken, Face::Arial));
    if (shown.accessibleName() != spoken) {
        shown.setAccessibleName(spoken);
    }
    show(faceFont(control_.font, fontPixels(control_.font, scale)), scale);
}

std::unique_ptr<DialogControl> makeDialogControl(Control& control, DialogHand& hand, QWidget* parent) {
    switch (control.kind) {
        case ControlKind::Key:
            return std::make_unique<ButtonControl<QPushButton>>(control, hand, parent);
        case ControlKind::Option:
            return std::make_unique<ButtonControl<QRadioButton>>(control, hand, parent);
        case ControlKind::Check:
            return std::make_unique<ButtonControl<QCheckBox>>(control, hand, parent);
        case ControlKind::Field:
            return std::make_unique<FieldControl>(control, hand, parent);
        case ControlKind::Label:
            return std::make_unique<LabelControl>(control, parent);
        case ControlKind::Frame:
            return std::make_unique<FrameControl>(control, parent);
        case ControlKind::List:
            return std::make_unique<ListControl>(control, hand, parent);
        case ControlKind::Choice:
            return std::make_unique<ChoiceControl>(control, hand, parent);
        case ControlKind::Picture:
            return std::make_unique<PictureControl>(control, parent);
        case ControlKind::Progress:
            return std::make_unique<ProgressControl>(control, parent);
        default:
            return nullptr;
    }
}

}  // namespace tallyforge::qt
