#pragma once

#include <QIcon>

#include "kit/art.h"

// A picture as an icon of a natural size in pixels of the normal size, drawn when it is wanted and crisp at every
// scale. The pictures outlive it.
QIcon ArtIcon(Art& art, const QString& name, QSize size);
