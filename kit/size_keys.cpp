#include "kit/size_keys.h"

#include <QShortcut>
#include <QWheelEvent>
#include <utility>

#include "kit/size.h"
#include "kit/sized_widgets.h"

SizeKeys::SizeKeys(QWidget& window, std::function<void(int)> chosen) : window_(window), chosen_(std::move(chosen)) {
    window_.installEventFilter(this);
    for (const char* keys : {"Ctrl++", "Ctrl+="}) Add(keys, [] { return Size() + sizeStep; });
    Add("Ctrl+-", [] { return Size() - sizeStep; });
    Add("Ctrl+0", [] { return normalSize; });
}

void SizeKeys::Add(const char* keys, std::function<int()> wanted) {
    auto* shortcut = new QShortcut(QKeySequence(keys), &window_);
    connect(shortcut, &QShortcut::activated, this, [this, wanted = std::move(wanted)] { Choose(wanted()); });
}

void SizeKeys::Choose(int percent) {
    if (!IsSize(percent) || percent == Size()) return;
    ChangeSize(percent);
    chosen_(percent);
}

bool SizeKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Wheel) return false;
    const auto* wheel = static_cast<QWheelEvent*>(event);
    if (!wheel->modifiers().testFlag(Qt::ControlModifier)) return false;
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    turned_ += wheel->angleDelta().y();
    const int steps = std::exchange(turned_, turned_ % notch) / notch;
    Choose(std::clamp(Size() + steps * sizeStep, smallestSize, largestSize));
    return true;
}
