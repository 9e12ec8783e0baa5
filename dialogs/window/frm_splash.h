#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "kit/art.h"

// The picture before the table. After 600 ms, or with a key or a click, it closes and calls end, once.
class frmSplash final : public QWidget {
public:
    frmSplash(Art& art, std::function<void()> end);

    void ShowSplash();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void End();

    Art& art_;
    std::function<void()> end_;  // empty when it has ended
    QTimer tmrUnload_;
};
