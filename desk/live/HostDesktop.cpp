#include "desk/live/HostDesktop.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include "desk/Machine.h"

namespace desk {

HostDesktop::HostDesktop(Machine& theMachine) : machine(theMachine) {
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { takeClipboard(); });
    QCoreApplication::instance()->installEventFilter(this);
    takeClipboard();
    takeColorScheme();
}

bool HostDesktop::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) takeColorScheme();
    return QObject::eventFilter(watched, event);
}

void HostDesktop::takeClipboard() {
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty() || text.toStdString() == known) return;
    known = text.toStdString();
    machine.clipboard = known;
}

void HostDesktop::handOnClipboard() {
    if (machine.clipboard == known) return;
    known = machine.clipboard;
    if (known) QGuiApplication::clipboard()->setText(QString::fromStdString(*known));
}

// The toolkit tells no scheme: letters brighter than what they stand on are a dark one's.
void HostDesktop::takeColorScheme() {
    const QPalette palette = QGuiApplication::palette();
    const bool isDark = palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    machine.appearance.colorScheme.setIfChanged(isDark ? platform::ColorScheme::dark : platform::ColorScheme::light);
    machine.settle();
}

}  // namespace desk
