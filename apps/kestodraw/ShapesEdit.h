#pragma once

#include "Document.h"

#include <QUndoCommand>

#include <functional>
#include <vector>

namespace KestoDraw {

// One undoable step of a drawing: the shapes before and after it, and the shape selected at
// either end (so that undo and redo leave the edited shape selected). Shapes share their fills,
// so a step costs a pointer per shape, whatever the fills hold.
class ShapesEdit : public QUndoCommand {
public:
    // The shapes and the index of the shape to select (-1: none).
    using Apply = std::function<void(const std::vector<Shape>&, int)>;
    struct State {
        std::vector<Shape> shapes;
        int selected;
    };

    ShapesEdit(const QString& name, State before, State after, Apply apply)
        : QUndoCommand(name), m_before(std::move(before)), m_after(std::move(after)), m_apply(std::move(apply))
    {
    }

    void undo() override { m_apply(m_before.shapes, m_before.selected); }
    void redo() override { m_apply(m_after.shapes, m_after.selected); }

private:
    State m_before;
    State m_after;
    Apply m_apply;
};

} // namespace KestoDraw
