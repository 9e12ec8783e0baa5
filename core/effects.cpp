#include "core/effects.h"

void PlayEffect(Game& game, std::string_view name) {
    if (game.session.SoundOn) game.effects.PlayEffect(name);
}
