#pragma once

#include <QLabel>
#include <array>

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
    Panel& At(int k) { return panels_[static_cast<std::size_t>(k - 1)]; }

    std::array<Panel, 5> panels_;
};
