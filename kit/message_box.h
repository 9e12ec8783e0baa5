#pragma once

#include <QWidget>

#include "core/message.h"
#include "kit/art.h"

// Shows the message and returns what was answered. OK is the default button; Escape and the close box answer Cancel
// where there is one. Without a parent the box stands in the middle of the screen.
Answer ShowMessageBox(QWidget* parent, Art& art, const Message& message);
