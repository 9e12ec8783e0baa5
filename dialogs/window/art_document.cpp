#include "dialogs/window/art_document.h"

#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QUrl>
#include <algorithm>

namespace {
// A resource is asked for by its name alone, so the name takes the width with it.
QString WithWidthInName(QString html, qreal scale) {
    static const QRegularExpression picture(R"-(src="(art:\w+)"\s+width="(\d+)")-");
    for (QRegularExpressionMatch found = picture.match(html); found.hasMatch();
         found = picture.match(html, found.capturedEnd())) {
        const int width = qRound(found.captured(2).toInt() * scale);
        const QString sized = QString(R"(src="%1?%2" width="%2")").arg(found.captured(1)).arg(width);
        html.replace(found.capturedStart(), found.capturedLength(), sized);
    }
    return html;
}
}  // namespace

ArtDocument::ArtDocument(Art& art, Scale scale, const QFont& font, const QString& styleSheet, const QString& html,
                         QObject* parent)
    : QTextDocument(parent), art_(art), devicePixelRatio_(scale.devicePixelRatio) {
    setDefaultFont(font);
    setDefaultStyleSheet(styleSheet);
    setHtml(WithWidthInName(html, scale.pictures));
}

QVariant ArtDocument::loadResource(int type, const QUrl& name) {
    if (type != ImageResource || name.scheme() != "art") return QTextDocument::loadResource(type, name);
    const QSizeF told = Art::DrawnSize(name.path());
    const int width = name.query().toInt();
    if (told.isEmpty() || width <= 0) return {};
    return art_.Scaled(name.path(), {width, qRound(width * told.height() / told.width())}, devicePixelRatio_);
}

void ShowInPlace(QTextEdit& view, ArtDocument* document) {
    QScrollBar& bar = *view.verticalScrollBar();
    const double share = static_cast<double>(bar.value()) / std::max(1, bar.maximum());
    const QPointer<QTextDocument> before = view.document();  // the view may own it or not
    view.setDocument(document);
    delete before;
    bar.setValue(qRound(share * bar.maximum()));
}
