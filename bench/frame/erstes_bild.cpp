// Loaded into a program by LD_PRELOAD: ends it as soon as its main window has been painted for the first
// time. So both sides of the comparison are measured in the same way, and the program has no hook of its own.

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <unistd.h>

namespace {

class ErstesBild : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override {
        if (Ereignis->type() == QEvent::Paint && qobject_cast<QMainWindow*>(Objekt)) {
            qApp->removeEventFilter(this);
            // After the event the window system has the picture.
            QTimer::singleShot(0, this, [] { _exit(0); });
        }
        return false;
    }
};

void Einrichten() {
    qApp->installEventFilter(new ErstesBild(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Einrichten)
