#include "sound/player/sound_loader.h"

#include <QLibrary>

#include "core/program_folder.h"

void SoundLoader::Load() {
    if (std::exchange(tried_, true)) return;
    const QString plugIn = QString::fromStdString(ProgramFile(plugInFolder_, {"luckycup-sound.so"}));
    const auto make = reinterpret_cast<MakeSoundPlayer*>(QLibrary::resolve(plugIn, makeSoundPlayer));
    if (make) player_.reset(make(programFolder_, clock_));
}

void SoundLoader::PlayEffect(std::string_view name) {
    Load();
    if (player_) player_->PlayEffect(name);
}

void SoundLoader::PlayEffectWait(std::string_view name) {
    Load();
    if (player_) player_->PlayEffectWait(name);
}

// Until something has been opened, every command finds its alias closed.
std::string SoundLoader::Send(const std::string& command) {
    if (command.starts_with("open ")) Load();
    return player_ ? player_->Send(command) : "";
}
