#pragma once

#include "kestotool/platform/Export.h"

#include <type_traits>

namespace KestoGDI {

class CFillNone;
class CFillSolid;
class CFillLinear;
class CFillRadial;
class CFillEllipse;
class CFillConical;
class CFillSquare;
class CFillThreeColour;
class CFillFourColour;
class CFillFractal;
class CFillBitmap;
class CFillDiscreteMesh;
class CFillVector;

// Double dispatch over the fill kinds: one Visit per kind, all pure, so that a visitor that
// forgets a kind does not compile. A transparency visits as the kind it shapes (a linear
// transparency arrives at Visit(CFillLinear)); ask IsTransparency where the difference matters.
// Code that depends on the kind of a fill is a visitor or reads FillKinds, never an if-ladder.
template <bool IsConst>
class KESTO_API BasicFillVisitor {
protected:
    template <class T>
    using Ref = std::conditional_t<IsConst, const T&, T&>;

public:
    virtual ~BasicFillVisitor() = default;

    virtual void Visit(Ref<CFillNone> fill) = 0;
    virtual void Visit(Ref<CFillSolid> fill) = 0;
    virtual void Visit(Ref<CFillLinear> fill) = 0;
    virtual void Visit(Ref<CFillRadial> fill) = 0;
    virtual void Visit(Ref<CFillEllipse> fill) = 0;
    virtual void Visit(Ref<CFillConical> fill) = 0;
    virtual void Visit(Ref<CFillSquare> fill) = 0;
    virtual void Visit(Ref<CFillThreeColour> fill) = 0;
    virtual void Visit(Ref<CFillFourColour> fill) = 0;
    virtual void Visit(Ref<CFillFractal> fill) = 0;
    virtual void Visit(Ref<CFillBitmap> fill) = 0;
    virtual void Visit(Ref<CFillDiscreteMesh> fill) = 0;
    virtual void Visit(Ref<CFillVector> fill) = 0;
};

using FillVisitor = BasicFillVisitor<false>;
using ConstFillVisitor = BasicFillVisitor<true>;

} // namespace KestoGDI
