#include "common/Dialogschritte.h"

#include <QApplication>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int Abstand = 2;           // ms between two looks
constexpr int GrenzeVersuche = 2500; // 5 seconds

} // namespace

Dialogschritte::Dialogschritte() {
    QTimer::singleShot(Abstand, this, &Dialogschritte::Nachsehen);
}

Dialogschritte::~Dialogschritte() {
    for (const Eintrag& Rest : Schritte)
        Melden(QStringLiteral("Dialog nie geöffnet: %1").arg(Rest.Name));
}

void Dialogschritte::Erwarte(const QString& Name, std::function<void(QDialog&)> Schritt) {
    Schritte.append({Name, std::move(Schritt)});
}

void Dialogschritte::Melden(const QString& Text) {
    QTest::qFail(qPrintable(Text), __FILE__, __LINE__);
}

void Dialogschritte::Nachsehen() {
    // Before the step runs: it may open the next dialog and come back only after that.
    QTimer::singleShot(Abstand, this, &Dialogschritte::Nachsehen);
    auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!Dialog || !Dialog->isVisible())
        return;
    if (!Dialog->isActiveWindow())
        Dialog->activateWindow();
    const bool Erwartet = !Schritte.isEmpty() && Schritte.first().Name == Dialog->objectName();
    if (Erwartet && Dialog->isActiveWindow()) {
        Versuche = 0;
        Schritte.takeFirst().Schritt(*Dialog);
        return;
    }
    // A dialog that a step has just answered may take a moment to go.
    if (++Versuche < (Erwartet ? GrenzeVersuche : GrenzeVersuche / 10))
        return;
    Melden(QStringLiteral("Dialog nicht erwartet oder nicht vorn: %1").arg(Dialog->objectName()));
    Dialog->close();
}
