#pragma once

#include "Document.h"

#include <QUndoCommand>

#include <functional>
#include <vector>

namespace KestoDraw {

// One undoable step of a drawing: the shapes before and after it. Shapes share their fills, so
// a step costs a pointer per shape, whatever the fills hold.
class ShapesEdit : public QUndoCommand {
public:
    using Apply = std::function<void(const std::vector<Shape>&)>;

    ShapesEdit(const QString& name, std::vector<Shape> before, std::vector<Shape> after, Apply apply)
        : QUndoCommand(name), m_before(std::move(before)), m_after(std::move(after)), m_apply(std::move(apply))
    {
    }

    void undo() override { m_apply(m_before); }
    void redo() override { m_apply(m_after); }

private:
    std::vector<Shape> m_before;
    std::vector<Shape> m_after;
    Apply m_apply;
};

} // namespace KestoDraw
