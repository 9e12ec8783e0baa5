#pragma once

#include <QWidget>
#include <functional>

// Ctrl with plus, minus, 0 or the wheel, over a window: the program shows itself a step larger, a step smaller, or at
// the normal size.
class SizeKeys final : public QObject {
public:
    // chosen: is told the size that the player has chosen.
    SizeKeys(QWidget& window, std::function<void(int percent)> chosen);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;  // of the window

private:
    void Add(const char* keys, std::function<int()> wanted);
    void Choose(int percent);

    QWidget& window_;
    std::function<void(int)> chosen_;
    int turned_ = 0;  // of the wheel, since the last step
};
