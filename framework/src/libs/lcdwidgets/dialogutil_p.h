// Geometry and look shared by the frameless dialogs: sizes derived from the host
// rectangle, centring, the rounded window mask and the pixel-size style sheets.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QString>
#include <atomic>

class QDialog;
class QFrame;
class QLabel;
class QObject;
class QVBoxLayout;
class QWidget;

namespace LCD {
namespace Widget {
namespace DialogUtil {

// The panel screen a dialog falls back to when its host gives no usable rectangle.
constexpr int kFallbackWidth = 800;
constexpr int kFallbackHeight = 480;

// The largest side of a host rectangle (a screen): 16K pixels.
constexpr int kMaxHostSide = 16384;

// `rect` when it has a positive width and height up to kMaxHostSide; otherwise the
// warning "<who> host rectangle is empty, using 800x480" (or "... is larger than any
// screen, using 800x480") and the panel's full screen.
QRect hostRect(QRect const& rect, char const* who);

// v · num / den in 64 bits, clamped to [0, QWIDGETSIZE_MAX] (a size or a spacing).
int part(qint64 v, qint64 num, qint64 den);

// The dialogs' font size: the host width / 37.5.
inline float fontSize(QRect const& rect) { return float(rect.width()) / 37.5f; }
// Its integer part, at least 1, as a pixel size.
int fontPixels(float fontSize);

// Top-left corner that centres `size` on `host`.
QPoint centreOn(QRect const& host, QSize const& size);

// "<type>{font-size: <px>px; }"
QString fontSheet(char const* type, int px);

// The frameless, translucent window of a dialog ("isReminderDialogBg") fixed at
// `size`, filled by one frame of the same size with the object name `frameName` and
// the dynamic property `frameProperty` = true; returns the frame.
QFrame* buildFramedWindow(QDialog* dialog, QSize size, QString const& frameName,
                          char const* frameProperty = "isReminderFrameBg");

// The centred title of a framed window: hidden until it has a text, the property
// "isTextViewTitle" for the theme and a font of `px` pixels.
QLabel* buildTitle(QFrame* frame, QString const& objectName, int px);

// The column that fills a framed window: side margins of `px`, top and bottom ones
// (and twice the spacing) of a 24th of the host's height.
QVBoxLayout* buildColumn(QFrame* frame, QRect const& host, int px);

// A dialog that is not its parent's child ends (done(-1)) when the parent goes away
// while it is shown; with `who`, "<who> parent destroyed: closing" is logged.
void closeWithParent(QDialog* dialog, QObject* parent, char const* who);

// Runs `dialog` modally (its QDialog::exec()) as every dialog of the library does:
// `executing` is 1 while it runs and back to 0 after (only if the dialog still
// exists: a dialog destroyed by its parent meanwhile is left alone), the window that
// had the knob when it opened gets it back, and "[dialog] exec finish with <result>"
// is logged. A second run while one is under way is refused (see ExecScope) and
// answers QDialog::Rejected.
int execModal(QDialog* dialog, std::atomic<int>* executing);

// Marks a dialog's modal run for its length. A second run of a dialog whose loop
// still runs (a host's timer, a key that opens it again) is refused with the warning
// "[<Class>] <what>: already running, refused" instead of reaching Qt.
class ExecScope
{
public:
    ExecScope(QDialog* dialog, char const* what);
    ~ExecScope();
    ExecScope(ExecScope const&) = delete;
    ExecScope& operator=(ExecScope const&) = delete;
    bool refused() const { return m_refused; }

private:
    QPointer<QDialog> m_dialog;
    bool m_refused = false;
};

// Masks `widget` to its rectangle with corners of `radius`.
void setRoundedMask(QWidget* widget, qreal radius = 6.0);

} // namespace DialogUtil
} // namespace Widget
} // namespace LCD
