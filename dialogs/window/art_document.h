#pragma once

#include <QTextDocument>

#include "kit/art.h"

// A text whose pictures are the game's art. An image names its picture and must name its width in pixels:
// <img src="art:NAME" width="24">. The pictures are drawn for so many device pixels to one.
class ArtDocument final : public QTextDocument {
public:
    ArtDocument(Art& art, qreal devicePixelRatio, const QFont& font, const QString& styleSheet, const QString& html,
                QObject* parent = nullptr);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    Art& art_;
    qreal devicePixelRatio_;
};
