#include "controls/Eingabereinigung.h"

#include "core/Codeseite.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStatusTipEvent>
#include <QToolTip>
#include <QWidget>

QString EingabeBereinigt(const QString& Text, bool Mehrzeilig, int* Entfallen) {
    static const QRegularExpression Umbruch(QStringLiteral("\r\n|[\r\n\\x{2028}\\x{2029}]"));
    QString Ohne = Text;
    Ohne.replace(Umbruch, Mehrzeilig ? QStringLiteral("\n") : QStringLiteral(" "));
    Ohne.replace(u'\t', u' ');
    return CodeseiteBereinigt(Ohne, Entfallen);
}

bool TasteUnbrauchbar(const QString& Tastentext) {
    // Qt's boxes take more than what is printed: format characters, halves of a pair, private use. Control
    // characters have bytes; the boxes leave them out themselves.
    return !Tastentext.isEmpty() && !Tastentext.front().isMark() && CodeseiteBereinigt(Tastentext).isEmpty();
}

void EntfallenMelden(QWidget* Feld) {
    const QString Hinweis = QStringLiteral("Dieses Zeichen kann in den Dateien nicht gespeichert werden.");
    QStatusTipEvent Ereignis(Hinweis);
    QCoreApplication::sendEvent(Feld, &Ereignis);
    QToolTip::showText(Feld->mapToGlobal(Feld->rect().bottomLeft()), Hinweis, Feld);
}
