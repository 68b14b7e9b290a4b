#pragma once

#include <kestotool/platform/CPoint.h>

#include <QDir>
#include <QString>
#include <QStringList>

namespace KestoDraw {

class MainWindow;

// Plays input on the window as a user would make it, and writes a screenshot of the window
// after each step of a script. Points are in document units; the player puts them where the
// canvas shows them.
//
// A script has one step a line ('#' starts a comment):
//   mode select|rectangle|ellipse|path     edit fill|transparency
//   click X Y [shift] [ctrl]                drag X1 Y1 X2 Y2 [shift] [ctrl]
//   press X Y [...]  move X Y [...]  release X Y [...]   (a drag a step at a time, so that a
//                                            screenshot shows it halfway)
//   drop SWATCH X Y                          (a palette swatch dragged and dropped there)
//   key NAME [shift]                         (Tab, Left, Right, Up, Down, Delete or a letter)
//   kind TYPE                                (the type box or the tool's type combo: a type number)
//   command undo|redo|fit|zoom-in|zoom-out|delete|autosave
//   hold                                     (stays there until the program is closed or killed)
//   save PATH   open PATH   import PATH.svg   export PATH (.png, .svg or .pdf; relative paths lie
//                                            in the output folder)
class ScriptPlayer {
public:
    ScriptPlayer(MainWindow& window, const QDir& output) : m_window(window), m_output(output) {}

    // A person's session is far shorter; a script longer than this is refused whole.
    static constexpr qsizetype kMaxSteps = 10'000; // and so at most as many screenshots

    // Plays every step; false, with the step and the reason in Error, at the first that fails
    // (a step that cannot be played, or whose screenshot cannot be written).
    bool Play(const QStringList& lines);
    bool PlayStep(const QString& line);
    const QString& Error() const { return m_error; }
    int Shots() const { return m_shots; }

    // Mouse and drop input at document points.
    void Press(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers = {});
    void Move(KestoPlatform::CPoint to, Qt::KeyboardModifiers modifiers = {});
    void Release(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers = {});
    void Drag(KestoPlatform::CPoint from, KestoPlatform::CPoint to, Qt::KeyboardModifiers modifiers = {});
    void Click(KestoPlatform::CPoint at, Qt::KeyboardModifiers modifiers = {});
    void DropSwatch(int swatch, KestoPlatform::CPoint at);
    // Chooses a type number in whichever type box shows.
    bool ChooseKind(int type);

private:
    QPointF ToWidget(KestoPlatform::CPoint at) const;
    void SendMouse(int type, KestoPlatform::CPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
                   Qt::KeyboardModifiers modifiers);
    void Settle();
    bool Shoot(const QString& name);

    MainWindow& m_window;
    QDir m_output;
    QString m_error;
    int m_shots = 0;
};

} // namespace KestoDraw
