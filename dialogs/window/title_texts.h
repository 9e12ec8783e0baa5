#pragma once

#include "core/game.h"
#include "dialogs/window/link_label.h"
#include "kit/twips.h"

// What frmWelcome and frmAbout tell alike, at places in the window.
void AddTitle(QWidget& window, const Place& place, Qt::Alignment alignment);
void AddVersion(QWidget& window, const Place& place, Qt::Alignment alignment);

struct Links {
    LinkLabel *webSite, *email;
};

// Two lines, each a caption and a link. place: that of the first caption.
Links AddLinks(QWidget& window, Game& game, const Place& place);
