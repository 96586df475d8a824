// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/control_interface.h"

#include "desktops/qt/control_painter.h"
#include "desktops/qt/control_widget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>

#include <algorithm>

namespace tallyforge::qt {

namespace {

QString unicode(std::string_view text, Face face = Face::Arial) {
    return QString::fromStdString(toUnicode(text, face)).simplified();
}

QAccessible::Role roleOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Key:
            return QAccessible::PushButton;
        case ControlKind::Option:
            return QAccessible::RadioButton;
        case ControlKind::Field:
            return QAccessible::EditableText;
        case ControlKind::List:
            return QAccessible::List;
        case ControlKind::Frame:
            return QAccessible::Grouping;
        case ControlKind::Lamp:
            return QAccessible::CheckBox;
        default:
            return QAccessible::StaticText;
    }
}

QString spokenName(const ControlWidget& widget) {
    const Control& control = widget.control();
    // A label says what it shows; what it is called matters only while it shows nothing.
    if (control.kind == ControlKind::Label && !widget.label().trimmed().isEmpty()) {
        return widget.label().simplified();
    }
    if (control.words) {
        if (QString words = unicode(control.words()); !words.isEmpty()) {
            return words;
        }
    }
    if (!control.spoken.empty()) {
        return unicode(control.spoken);
    }
    const QString caption = plainCaption(control).simplified();
    return caption.isEmpty() ? QString::fromStdString(control.fullName()) : caption;
}

/// Text and value, for fields; the value alone for what has a selected row.
class ControlInterface : public QAccessibleWidget {
public:
    explicit ControlInterface(ControlWidget* widget)
        : QAccessibleWidget(widget, roleOf(widget->control().kind)), widget_(*widget) {}

    [[nodiscard]] QString text(QAccessible::Text which) const override {
        const Control& control = widget_.control();
        switch (which) {
            case QAccessible::Name:
                return spokenName(widget_);
            case QAccessible::Value:
                return widget_.meaning();
            case QAccessible::Description: {
                const QString tip = unicode(control.tip);
                return control.group.empty() ? tip : unicode(control.group);
            }
            default:
                return QAccessibleWidget::text(which);
        }
    }
    [[nodiscard]] QAccessible::State state() const override {
        const Control& control = widget_.control();
        QAccessible::State state = QAccessibleWidget::state();
        const bool lamp = control.kind == ControlKind::Lamp;
        state.checkable = control.kind == ControlKind::Option || lamp;
        state.checked = lamp ? control.visible : control.checked;
        state.invisible = state.invisible && !lamp;
        state.disabled = !control.enabled;
        state.focusable = control.walkStop != 0;
        state.focused = widget_.hasKeyboard();
        state.readOnly = control.kind == ControlKind::Field && !control.keyPress;
        return state;
    }
    // The form has the keyboard as a whole, so an assistive tool clicks instead of focusing.
    [[nodiscard]] QStringList actionNames() const override {
        const ControlKind kind = widget_.control().kind;
        const bool clickable = kind == ControlKind::Key || kind == ControlKind::Option;
        return clickable ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            widget_.clickForTool();
        }
    }

protected:
    [[nodiscard]] ControlWidget& shown() const { return widget_; }

private:
    ControlWidget& widget_;
};

/// The text of a field, character by character.
class FieldInterface final : public ControlInterface, public QAccessibleTextInterface {
public:
    using ControlInterface::ControlInterface;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : ControlInterface::interface_cast(type);
    }
    using ControlInterface::text;
    [[nodiscard]] QString text(int from, int to) const override { return whole().mid(from, to - from); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(whole().size()); }
    [[nodiscard]] int cursorPosition() const override {
        return std::min(static_cast<int>(shown().control().caret), characterCount());
    }
    void setCursorPosition(int /*position*/) override {}
    void selection(int /*index*/, int* from, int* to) const override { *from = *to = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*from*/, int /*to*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*from*/, int /*to*/) override {}
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return characterCount(); }
    void scrollToSubstring(int /*from*/, int /*to*/) override {}
    [[nodiscard]] QString attributes(int /*offset*/, int* from, int* to) const override {
        *from = 0;
        *to = characterCount();
        return {};
    }

private:
    [[nodiscard]] QString whole() const { return shown().meaning(); }
};

/// One row of a list; it is read when it is asked for.
class RowInterface final : public QAccessibleInterface {
public:
    RowInterface(ControlWidget& list, std::size_t row) : list_(list), row_(row) {}

    [[nodiscard]] bool isValid() const override { return rows() != nullptr && row_ < rows()->count(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&list_);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Name && isValid() ? unicode(rows()->row(row_), list_.control().font.face)
                                                       : QString();
    }
    void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override { return list_.rowPlace(row_); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.selected = isValid() && rows()->selected() == row_;
        state.focused = state.selected && list_.hasKeyboard();
        state.offscreen = rect().isEmpty();
        return state;
    }

    [[nodiscard]] std::size_t row() const { return row_; }

private:
    [[nodiscard]] const ListRows* rows() const { return list_.control().rows; }

    ControlWidget& list_;
    std::size_t row_;
};

class ListInterface final : public ControlInterface {
public:
    using ControlInterface::ControlInterface;
    ~ListInterface() override {
        for (const QAccessible::Id id : made_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
    ListInterface(const ListInterface&) = delete;
    ListInterface& operator=(const ListInterface&) = delete;

    [[nodiscard]] int childCount() const override {
        const ListRows* rows = shown().control().rows;
        return rows == nullptr ? 0 : static_cast<int>(rows->count());
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        QAccessible::Id& id = made_[index];
        if (id == 0) {
            id = QAccessible::registerAccessibleInterface(new RowInterface(shown(), static_cast<std::size_t>(index)));
        }
        return QAccessible::accessibleInterface(id);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* row = dynamic_cast<const RowInterface*>(child);
        return row == nullptr ? -1 : static_cast<int>(row->row());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return child(static_cast<int>(shown().rowUnder(QPoint(x, y))));
    }

private:
    mutable QHash<int, QAccessible::Id> made_;
};

QAccessibleInterface* makeInterface(const QString& /*key*/, QObject* object) {
    auto* widget = qobject_cast<ControlWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    switch (widget->control().kind) {
        case ControlKind::Field:
            return new FieldInterface(widget);
        case ControlKind::List:
            return new ListInterface(widget);
        default:
            return new ControlInterface(widget);
    }
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeInterface);
}

void tellChange(ControlWidget& widget) {
    const ControlKind kind = widget.control().kind;
    if (kind == ControlKind::Field || kind == ControlKind::List) {
        QAccessibleValueChangeEvent event(&widget, widget.meaning());
        QAccessible::updateAccessibility(&event);
        return;
    }
    QAccessibleEvent event(&widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void tellFocus(ControlWidget& widget) {
    QAccessibleEvent event(&widget, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

}  // namespace tallyforge::qt
