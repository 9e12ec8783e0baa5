// Draws a square picture at one size: render-icon PICTURE.svg PIXELS FILE.png

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
    if (argc != 4) return std::fputs("usage: render-icon PICTURE.svg PIXELS FILE.png\n", stderr), 2;

    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter;
    if (!picture.isValid() || !painter.begin(&icon)) return std::fputs("render-icon: nothing to draw\n", stderr), 1;
    picture.render(&painter);
    painter.end();
    return icon.save(QString::fromLocal8Bit(argv[3])) ? 0 : 1;
}
