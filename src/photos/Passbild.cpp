#include "photos/Passbild.h"

#include "core/AutoDatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool TaugtAlsPfadteil(const QString& Teil) {
    return !Teil.isEmpty() && !Teil.contains(u'/') && !Teil.contains(u'\\') && !Teil.contains(QChar::Null) &&
           !Teil.contains(QStringLiteral(".."));
}

bool PassbilderMoeglich(const QString& Datei) {
    return Datei != Unbenannt && AutoLaden();
}

} // namespace

QString PassbildPfad(const Schueler& Einer, const QString& Name) {
    const QString Datei = AutoDatei();
    QString Jahr = Einer.Jahr;
    if (Jahr.size() > 4)
        Jahr[4] = u'-';
    if (!PassbilderMoeglich(Datei) || !TaugtAlsPfadteil(Jahr) || !TaugtAlsPfadteil(Einer.Klasse) ||
        !TaugtAlsPfadteil(Name))
        return {};
    return QFileInfo(Datei).absolutePath() + QStringLiteral("/Passbilder/") + Jahr + u'/' + Einer.Klasse +
           u'/' + Name + QStringLiteral(".bmp");
}

void PassbildUmbenennen(int Index, const QString& NeuerName) {
    if (Index <= 0)
        return;
    const Schueler& Einer = Datenbank.Schueler[Index];
    const QString Alt = PassbildPfad(Einer, Einer.Name);
    const QString Neu = PassbildPfad(Einer, NeuerName);
    if (!Alt.isEmpty() && !Neu.isEmpty())
        QFile::rename(Alt, Neu);
}
