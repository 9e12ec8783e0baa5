// Draws every picture of the program at scale 1 and 3 on one sheet: contact-sheet FILE.png

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cstdio>

#include "kit/art.h"

namespace {

constexpr int sheetWidth = 1570;
constexpr int margin = 10;
constexpr int nameHeight = 14;
constexpr int largeScale = 3;
constexpr int dieSize = 53;  // dice are drawn larger than they are shown

QSize ShownSize(const QString& name) {
    if (name.startsWith("die_")) return {dieSize, dieSize};
    if (name == "icon") return {64, 64};
    return QSvgRenderer(":/art/" + name + ".svg").viewBoxF().size().toSize();
}

// What stands behind the picture in the game.
QColor Ground(const QString& name) {
    if (name.startsWith("die_") || name.startsWith("roll_")) return 0x505050;
    if (name.startsWith("box_") || name.startsWith("row_")) return 0x909090;
    if (name.startsWith("digit_") || name.startsWith("counter_")) return 0x10307A;
    if (name.startsWith("lamp_")) return 0x1D3A7A;
    if (name.startsWith("mark_")) return 0x6690DC;
    if (name == "smile") return 0x003366;
    return 0xCDCDCD;
}

QSize CellSize(const QString& name) {
    const QSize shown = ShownSize(name);
    return {shown.width() * (1 + largeScale) + 3 * margin,
            std::max(shown.height() * largeScale + 2 * margin, 3 * margin) + nameHeight};
}

void DrawCell(QPainter& painter, Art& art, const QString& name, const QRect& cell) {
    const QSize shown = ShownSize(name);
    const QRect ground = cell.adjusted(2, 2, -2, -nameHeight);
    painter.fillRect(ground, Ground(name));
    const QPoint corner = ground.topLeft() + QPoint(margin, margin);
    painter.drawPixmap(corner, art.Picture(name, shown));
    painter.drawPixmap(corner + QPoint(shown.width() + margin, 0), art.Picture(name, shown * largeScale));
    painter.drawText(QRect(cell.left(), ground.bottom(), cell.width(), nameHeight), Qt::AlignCenter, name);
}

// Places the cells row by row; with a painter it draws them too. Returns the height of the sheet.
int LayOutSheet(Art& art, const QStringList& names, QPainter* painter) {
    QPoint corner(margin, margin);
    int rowHeight = 0;
    for (const QString& name : names) {
        const QSize size = CellSize(name);
        if (corner.x() + size.width() > sheetWidth) {
            corner = {margin, corner.y() + rowHeight + margin};
            rowHeight = 0;
        }
        if (painter != nullptr) DrawCell(*painter, art, name, {corner, size});
        corner.rx() += size.width() + margin;
        rowHeight = std::max(rowHeight, size.height());
    }
    return corner.y() + rowHeight + margin;
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: contact-sheet FILE.png\n");
        return 2;
    }
    Art art;
    QStringList names;
    for (const QString& file : QDir(":/art").entryList({"*.svg"}, QDir::Files, QDir::Name)) names << file.chopped(4);
    std::ranges::stable_sort(names, {}, [](const QString& name) { return CellSize(name).height(); });

    QImage sheet(sheetWidth, LayOutSheet(art, names, nullptr), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    LayOutSheet(art, names, &painter);
    return sheet.save(argv[1]) ? 0 : 1;
}
