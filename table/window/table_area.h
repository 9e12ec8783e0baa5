#pragma once

#include <QWidget>
#include <functional>

// The ground that the controls of the table stand on. What need not be there for the first picture is done after it, so
// that the window opens sooner.
class TableArea final : public QWidget {
public:
    TableArea(QWidget* window, std::function<void()> afterFirstPicture);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void()> afterFirstPicture_;
};
