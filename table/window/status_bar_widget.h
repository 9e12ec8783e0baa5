#pragma once

#include <QLabel>

#include "core/indexed.h"

// StatusBar1: five sunken panels from the left, of which the last takes what room is left. Panels count from 1.
class StatusBarWidget final : public QWidget {
public:
    explicit StatusBarWidget(QWidget* parent);

    void SetPanelText(int k, const QString& text);
    void SetPanelLayout(int k, int widthInTwips, bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Panel {
        QLabel* label = nullptr;
        int width = 0;  // twips
        bool visible = false;
    };

    void PlacePanels();

    Indexed<Panel, 5, int, 1> panels_;
};
