#pragma once

#include <QTextDocument>
#include <QTextEdit>

#include "kit/art.h"

// A text whose pictures are the game's art. An image names its picture and must name its width in pixels:
// <img src="art:NAME" width="24">. The pictures are drawn for so many device pixels to
// one, and shown so many times as wide as they are told.
class ArtDocument final : public QTextDocument {
public:
    struct Scale {
        qreal devicePixelRatio;
        qreal pictures = 1;
    };

    ArtDocument(Art& art, Scale scale, const QFont& font, const QString& styleSheet, const QString& html,
                QObject* parent = nullptr);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    Art& art_;
    qreal devicePixelRatio_;
};

// Shows the document in the place of the one that is shown now, at the same share of its length. The view takes it.
void ShowInPlace(QTextEdit& view, ArtDocument* document);
