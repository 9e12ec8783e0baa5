#pragma once

#include <QAbstractButton>

#include "kit/twips.h"

// A text that leads somewhere, as wide as it reads. Reached by Tab, followed by a click, Enter or space; its tool tip
// says where it leads.
class LinkLabel final : public QAbstractButton {
public:
    // place: the left end of the line, and its height
    LinkLabel(const char* name, QWidget* parent, const char* text, const std::string& target, const Place& place);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FitText();

    Place place_;
};
