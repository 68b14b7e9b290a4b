#pragma once

#include <QIcon>

namespace KestoDraw {

// A small picture of a fill kind (or transparency kind) as the renderer paints it: a fresh fill
// of the kind with its default controls on a square, a transparency as a blue square through its
// levels, both over a light checkerboard that shows what is clear. Null for an unknown type.
// Kept once made, per kind, side and pixel ratio.
QIcon KindIcon(int type, bool transparency, int side, qreal pixelRatio);

// Whether kestodraw can paint a fill or transparency of the type (and so offers it): the
// renderer paints it; a kind it cannot paint would show as flat grey with nothing to edit.
bool Paintable(int type, bool transparency);

} // namespace KestoDraw
