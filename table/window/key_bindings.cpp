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
}  // namespace

std::optional<PlayerKey> PlayerKeyOf(const QKeyEvent& event) {
    const QKeyCombination key(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key()));
    const auto* binding = std::ranges::find(bindings, key, &KeyBinding::key);
    if (binding == std::end(bindings) || (event.isAutoRepeat() && !Repeats(binding->does))) return {};
    return binding->does;
}
