#include "kit/spoken.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace {
constexpr const char* checkedProperty = "spokenChecked";
constexpr const char* roleProperty = "spokenRole";
constexpr const char* focusProperty = "spokenFocus";  // of a window: the control that a screen reader was led to

QVariant Checked(const QObject& control) { return control.property(checkedProperty); }

class SpokenWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override {
        const QVariant told = widget()->property(roleProperty);
        if (told.isValid()) return static_cast<QAccessible::Role>(told.toInt());
        if (widget()->accessibleName().isEmpty()) return QAccessibleWidget::role();
        return childCount() > 0 ? QAccessible::Grouping : QAccessible::StaticText;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (IsDecoration()) state.invisible = true;
        if (widget()->window()->property(focusProperty).value<QWidget*>() == widget())
            state.focusable = state.focused = true;
        return state;
    }

private:
    bool IsDecoration() const {
        return widget()->testAttribute(Qt::WA_TransparentForMouseEvents) && widget()->accessibleName().isEmpty();
    }
};

// A button is pressed only while a player could press it. The screen reader does not wait for what comes of it, which
// may be a dialog.
class SpokenButton final : public SpokenWidget {
public:
    using SpokenWidget::SpokenWidget;

    QAccessible::Role role() const override {
        return Checked(*widget()).isValid() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QString text(QAccessible::Text kind) const override {
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? Button().text() : told;
    }

    QAccessible::State state() const override {
        QAccessible::State state = SpokenWidget::state();
        state.checkable = Checked(*widget()).isValid();
        state.checked = Checked(*widget()).toBool();
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (Button().isEnabled()) names.prepend(Action());
        return names;
    }

    void doAction(const QString& name) override {
        if (name != Action()) return QAccessibleWidget::doAction(name);
        QAbstractButton* button = &Button();
        const auto click = [button] {
            if (button->isVisible()) button->click();
        };
        QMetaObject::invokeMethod(button, click, Qt::QueuedConnection);
    }

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QAbstractButton& Button() const { return static_cast<QAbstractButton&>(*widget()); }
    const QString& Action() const { return Checked(*widget()).isValid() ? toggleAction() : pressAction(); }
};

// The game's own controls have no meta object of theirs and go by that of the class they come from.
QAccessibleInterface* Spoken(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || className != object->metaObject()->className()) return nullptr;
    if (className == "QAbstractButton") return new SpokenButton(widget);
    return className == "QWidget" ? new SpokenWidget(widget) : nullptr;
}
}  // namespace

void MakeControlsSpeak() {
    QAccessible::installFactory(Spoken);
    // Asking makes the bridge to the screen readers now and not with the first name told. Making it waits for a thread
    // of Qt's, and longer once those that work ahead keep the processors busy.
    QAccessible::isActive();
}

void Say(QWidget& control, const QString& name) {
    if (control.accessibleName() != name) control.setAccessibleName(name);
}

void SayChecked(QWidget& control, bool checked) {
    if (Checked(control) == QVariant(checked)) return;
    control.setProperty(checkedProperty, checked);
    if (!QAccessible::isActive()) return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&control, changed);
    QAccessible::updateAccessibility(&event);
}

void SayFocus(QWidget& control) {
    control.window()->setProperty(focusProperty, QVariant::fromValue(&control));
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(&control, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void SetRole(QWidget& control, QAccessible::Role role) { control.setProperty(roleProperty, static_cast<int>(role)); }
