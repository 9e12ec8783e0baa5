#include "kit/art_icon.h"

#include <QIconEngine>

#include "kit/size.h"

namespace {
class ArtIconEngine final : public QIconEngine {
public:
    ArtIconEngine(Art& art, const QString& name, QSize size) : art_(art), name_(name), size_(size) {}

    QIconEngine* clone() const override { return new ArtIconEngine(art_, name_, size_); }
    QSize actualSize(const QSize&, QIcon::Mode, QIcon::State) override { return Sized(size_); }
    void paint(QPainter* painter, const QRect& area, QIcon::Mode, QIcon::State) override {
        art_.Draw(*painter, area, name_);
    }
    QPixmap pixmap(const QSize& devicePixels, QIcon::Mode, QIcon::State) override {
        return art_.Picture(name_, devicePixels);
    }

private:
    Art& art_;
    QString name_;
    QSize size_;
};
}  // namespace

QIcon ArtIcon(Art& art, const QString& name, QSize size) { return QIcon(new ArtIconEngine(art, name, size)); }
