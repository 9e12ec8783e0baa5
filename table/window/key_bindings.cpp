#include "table/window/key_bindings.h"

#include <algorithm>

namespace {
struct KeyBinding {
    QKeyCombination key;
    PlayerKey does;
};

constexpr KeyBinding bindings[] = {
    {Qt::Key_1, PlayerKey::Die1},
    {Qt::Key_2, PlayerKey::Die2},
    {Qt::Key_3, PlayerKey::Die3},
    {Qt::Key_4, PlayerKey::Die4},
    {Qt::Key_5, PlayerKey::Die5},
    {Qt::Key_6, PlayerKey::Die6},
    {Qt::Key_Left, PlayerKey::Left},
    {Qt::Key_Right, PlayerKey::Right},
    {Qt::Key_Up, PlayerKey::Up},
    {Qt::Key_Down, PlayerKey::Down},
    {Qt::CTRL | Qt::Key_Return, PlayerKey::PressMarked},
    {Qt::CTRL | Qt::Key_Enter, PlayerKey::PressMarked},
    {Qt::Key_Escape, PlayerKey::TakeMarkAway},
    {Qt::Key_H, PlayerKey::Hint},
    {Qt::Key_N, PlayerKey::NextPlayer},
    {Qt::Key_B, PlayerKey::ShowBoard},
    {Qt::CTRL | Qt::Key_Z, PlayerKey::Undo},
    {Qt::CTRL | Qt::Key_Y, PlayerKey::Redo},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, PlayerKey::Redo},
};

// The keys by their place on the keyboard, which X11 and Wayland number alike. They stand for what they are in America
// where the layout puts no letter and no digit of ours there: an & on the 1 in France, a Cyrillic letter on the H.
struct KeyPlace {
    quint32 number;
    Qt::Key key;
};

constexpr KeyPlace places[] = {
    {10, Qt::Key_1}, {11, Qt::Key_2}, {12, Qt::Key_3}, {13, Qt::Key_4}, {14, Qt::Key_5},
    {15, Qt::Key_6}, {43, Qt::Key_H}, {57, Qt::Key_N}, {56, Qt::Key_B},
};

bool IsDigit(int key) { return key >= Qt::Key_0 && key <= Qt::Key_9; }

QKeyCombination CombinationOf(const QKeyEvent& event) {
    const auto key = static_cast<Qt::Key>(event.key());
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (IsDigit(key)) return (held & ~Qt::ShiftModifier) | key;  // which some layouts want for a digit
    const auto* place = std::ranges::find(places, event.nativeScanCode(), &KeyPlace::number);
    const bool ours = held || (key >= Qt::Key_A && key <= Qt::Key_Z);
    return held | (ours || place == std::end(places) ? key : place->key);
}
}  // namespace

std::optional<PlayerKey> PlayerKeyOf(const QKeyEvent& event) {
    const QKeyCombination key = CombinationOf(event);
    const auto* binding = std::ranges::find(bindings, key, &KeyBinding::key);
    if (binding == std::end(bindings) || (event.isAutoRepeat() && !Repeats(binding->does))) return {};
    return binding->does;
}
