#include "ScriptPlayer.h"

#include "JsonRead.h"
#include "MainWindow.h"
#include "Palette.h"

#include <kestotool/filltool/FillCommands.h>
#include <kestotool/platform/CXTPControlComboBox.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

#include <cstdio>

namespace KestoDraw {

namespace {

// Moves a drag makes between its ends, as a hand's mouse reports them.
constexpr int kDragSteps = 8;

Qt::KeyboardModifiers Modifiers(const QStringList& words, qsizetype from)
{
    Qt::KeyboardModifiers modifiers;
    for (qsizetype i = from; i < words.size(); ++i) {
        if (words[i] == "shift")
            modifiers |= Qt::ShiftModifier;
        else if (words[i] == "ctrl")
            modifiers |= Qt::ControlModifier;
    }
    return modifiers;
}

} // namespace

bool ScriptPlayer::Play(const QStringList& lines)
{
    if (lines.size() > kMaxSteps) {
        m_error = QStringLiteral("the script has %1 lines; at most %2 are played").arg(lines.size()).arg(kMaxSteps);
        return false;
    }
    for (const QString& line : lines) {
        if (!PlayStep(line))
            return false;
    }
    return true;
}

bool ScriptPlayer::PlayStep(const QString& line)
{
    const QString text = line.section('#', 0, 0).trimmed();
    if (text.isEmpty())
        return true;
    const QStringList w = text.split(' ', Qt::SkipEmptyParts);
    const QString& verb = w[0];
    const auto number = [&](qsizetype i, bool& ok) { return i < w.size() ? w[i].toInt(&ok) : (ok = false, 0); };
    bool ok = true;
    const auto point = [&](qsizetype i) {
        bool okX = false, okY = false;
        const KestoPlatform::CPoint p(number(i, okX), number(i + 1, okY));
        ok = ok && okX && okY;
        return p;
    };
    const auto file = [&](qsizetype i) {
        return i < w.size() ? m_output.absoluteFilePath(w[i]) : (ok = false, QString());
    };
    Canvas& canvas = m_window.GetCanvas();
    if (verb == "mode" && w.size() == 2) {
        const QStringList modes{"select", "rectangle", "ellipse", "path"};
        ok = modes.contains(w[1]);
        canvas.SetMode(static_cast<Canvas::Mode>(modes.indexOf(w[1])));
    } else if (verb == "edit" && w.size() == 2 && (w[1] == "fill" || w[1] == "transparency")) {
        canvas.SetEditTransparency(w[1] == "transparency");
    } else if (verb == "click") {
        const KestoPlatform::CPoint at = point(1);
        if (ok)
            Click(at, Modifiers(w, 3));
    } else if (verb == "drag") {
        const KestoPlatform::CPoint from = point(1);
        const KestoPlatform::CPoint to = point(3);
        if (ok)
            Drag(from, to, Modifiers(w, 5));
    } else if (verb == "press" || verb == "move" || verb == "release") {
        const KestoPlatform::CPoint at = point(1);
        if (ok)
            (this->*(verb == "press"  ? &ScriptPlayer::Press
                     : verb == "move" ? &ScriptPlayer::Move
                                      : &ScriptPlayer::Release))(at, Modifiers(w, 3));
    } else if (verb == "drop") {
        const int swatch = number(1, ok);
        const KestoPlatform::CPoint at = point(2);
        ok = ok && swatch >= 0 && swatch < m_window.GetPalette().Count();
        if (ok)
            DropSwatch(swatch, at);
    } else if (verb == "key" && w.size() >= 2) {
        const QKeySequence key(w[1]);
        ok = key.count() == 1;
        // A menu's key would open its dialog, which waits for a person: refused, with the
        // steps that do the same without one.
        const QKeySequence pressed(key.count() == 1 ? QKeyCombination(Modifiers(w, 2), key[0].key())
                                                    : QKeyCombination());
        for (const QAction* action : m_window.findChildren<QAction*>()) {
            if (ok && !action->shortcut().isEmpty() && action->shortcut() == pressed) {
                m_error = QStringLiteral("\"%1\" is the key of %2, which opens a dialog: use the command, save, open, "
                                         "import or export steps")
                              .arg(JsonRead::Excerpt(text), action->text().remove('&'));
                return false;
            }
        }
        if (ok)
            QTest::keyClick(&canvas, key[0].key(), Modifiers(w, 2));
    } else if (verb == "kind") {
        const int type = number(1, ok);
        ok = ok && ChooseKind(type);
    } else if (verb == "command" && w.size() == 2) {
        if (w[1] == "undo")
            m_window.Undo().undo();
        else if (w[1] == "redo")
            m_window.Undo().redo();
        else if (w[1] == "fit")
            canvas.FitPage();
        else if (w[1] == "zoom-in")
            canvas.ZoomBy(1.25);
        else if (w[1] == "zoom-out")
            canvas.ZoomBy(0.8);
        else if (w[1] == "delete")
            canvas.DeleteSelected();
        else if (w[1] == "autosave")
            ok = m_window.GetAutosave().WriteNow();
        else
            ok = false;
    } else if (verb == "hold" && w.size() == 1) {
        // The window stays as the script left it until the program is closed or killed.
        std::printf("kestodraw: holding\n");
        std::fflush(stdout);
        QEventLoop().exec();
    } else if (verb == "save") {
        const QString path = file(1);
        ok = ok && m_window.SaveAs(path);
    } else if (verb == "open") {
        const QString path = file(1);
        ok = ok && m_window.Open(path);
    } else if (verb == "import") {
        const QString path = file(1);
        ok = ok && m_window.ImportSvg(path);
    } else if (verb == "export") {
        const QString path = file(1);
        const auto is = [&path](const char* suffix) { return path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive); };
        ok = ok && (is(".svg") ? m_window.ExportSvg(path) : is(".pdf") ? m_window.ExportPdf(path) : m_window.ExportPng(path));
    } else {
        ok = false;
    }
    if (!ok) {
        m_error = QStringLiteral("cannot play \"%1\"").arg(JsonRead::Excerpt(text));
        return false;
    }
    Settle();
    return Shoot(JsonRead::Excerpt(w.join('-').replace('/', '_')));
}

QPointF ScriptPlayer::ToWidget(KestoPlatform::CPoint at) const
{
    return m_window.GetCanvas().View().map(QPointF(at.x, at.y));
}

void ScriptPlayer::SendMouse(int type, KestoPlatform::CPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
                             Qt::KeyboardModifiers modifiers)
{
    Canvas& canvas = m_window.GetCanvas();
    const QPointF local = ToWidget(at);
    QMouseEvent event(static_cast<QEvent::Type>(type), local, canvas.mapToGlobal(local), button, buttons, modifiers);
    QApplication::sendEvent(&canvas, &event);
}

void ScriptPlayer::Press(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers)
{
    SendMouse(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, modifiers);
}

void ScriptPlayer::Move(KestoPlatform::CPoint to, Qt::KeyboardModifiers modifiers)
{
    SendMouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, modifiers);
}

void ScriptPlayer::Release(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers)
{
    SendMouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, modifiers);
}

void ScriptPlayer::Drag(KestoPlatform::CPoint from, KestoPlatform::CPoint to, Qt::KeyboardModifiers modifiers)
{
    Press(from, modifiers);
    for (int i = 1; i <= kDragSteps; ++i) {
        const auto along = [i](int a, int b) {
            return static_cast<int>(a + (static_cast<long long>(b) - a) * i / kDragSteps);
        };
        Move(KestoPlatform::CPoint(along(from.x, to.x), along(from.y, to.y)), modifiers);
    }
    Release(to, modifiers);
}

void ScriptPlayer::Click(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers)
{
    Press(at, modifiers);
    Release(at, modifiers);
}

void ScriptPlayer::DropSwatch(int swatch, KestoPlatform::CPoint at)
{
    // The drag and drop events the canvas gets from a swatch dragged out of the palette.
    Canvas& canvas = m_window.GetCanvas();
    QMimeData mime;
    mime.setData(Canvas::ColourMime, m_window.GetPalette().MimeData(swatch));
    const QPointF local = ToWidget(at);
    QDragEnterEvent enter(local.toPoint(), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &enter);
    QDragMoveEvent move(local.toPoint(), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &move);
    QDropEvent drop(local, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &drop);
}

bool ScriptPlayer::ChooseKind(int type)
{
    Canvas& canvas = m_window.GetCanvas();
    canvas.FlushPendingRebuild();
    QComboBox* box = nullptr;
    int index = -1;
    if (canvas.Tool()) {
        // The tool's own type combo: the item whose data is the type.
        const int id = KestoTool::FillCommands::HostId(KestoTool::FillCmdEditType);
        m_window.ContextBar().UpdateControls();
        const auto* model =
            dynamic_cast<const KestoPlatform::CXTPControlComboBox*>(canvas.ContextBars()->FindControl(id));
        box = qobject_cast<QComboBox*>(m_window.ContextBar().WidgetOf(id));
        for (int i = 0; model && i < model->GetCount(); ++i) {
            if (model->GetItemData(i) == type)
                index = i;
        }
    } else {
        box = &m_window.KindBox();
        index = box->findData(type);
    }
    if (!box || index < 0 || index >= box->count())
        return false;
    box->setCurrentIndex(index);
    emit box->activated(index);
    return true;
}

void ScriptPlayer::Settle()
{
    QApplication::processEvents();
    m_window.GetCanvas().FlushPendingRebuild();
    QApplication::processEvents();
}

bool ScriptPlayer::Shoot(const QString& name)
{
    const QString path =
        m_output.absoluteFilePath(QStringLiteral("%1-%2.png").arg(m_shots + 1, 2, 10, QChar('0')).arg(name));
    if (!m_window.grab().save(path, "PNG")) {
        m_error = QStringLiteral("the screenshot %1 could not be written").arg(path);
        return false;
    }
    ++m_shots;
    return true;
}

} // namespace KestoDraw
