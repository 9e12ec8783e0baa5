#pragma once

#include <functional>

#include "core/game.h"
#include "kit/controls.h"

using GameCommand = void (*)(Game&);

// How the menu bar and the toolbar reach the game: exit closes the main window.
struct CommandRunner {
    std::function<void(GameCommand)> run;
    std::function<void()> exit;
};

inline constexpr int keyCount = 12;

// What the keys show before anybody has played, and its size in pixels.
QStringList FirstKeyPictures();
QSize KeyPictureSize();

// Toolbar2: eight small buttons with pictures and four separators.
class ToolBar final : public QWidget {
public:
    ToolBar(QWidget* parent, Art& art, const CommandRunner& runner);

    void SetUndoEnabled(bool on);
    void SetRedoEnabled(bool on);
    void SetHintEnabled(bool on);
    void ShowSound(bool on);
    void ShowMusic(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Indexed<QAbstractButton*, keyCount, int, 1> buttons_{};  // numbered from 1; none where a separator stands
};
