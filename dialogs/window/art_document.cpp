#include "dialogs/window/art_document.h"

#include <QRegularExpression>
#include <QUrl>

// A resource is asked for by its name alone, so the name takes the width with it.
static QString WithWidthInName(QString html) {
    static const QRegularExpression picture(R"-(src="(art:\w+)"\s+width="(\d+)")-");
    return html.replace(picture, R"(src="\1?\2" width="\2")");
}

ArtDocument::ArtDocument(Art& art, qreal devicePixelRatio, const QFont& font, const QString& styleSheet,
                         const QString& html, QObject* parent)
    : QTextDocument(parent), art_(art), devicePixelRatio_(devicePixelRatio) {
    setDefaultFont(font);
    setDefaultStyleSheet(styleSheet);
    setHtml(WithWidthInName(html));
}

QVariant ArtDocument::loadResource(int type, const QUrl& name) {
    if (type != ImageResource || name.scheme() != "art") return QTextDocument::loadResource(type, name);
    const QSizeF told = Art::ToldSize(name.path());
    const int width = name.query().toInt();
    if (told.isEmpty() || width <= 0) return {};
    return art_.Scaled(name.path(), {width, qRound(width * told.height() / told.width())}, devicePixelRatio_);
}
