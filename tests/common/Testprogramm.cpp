#include "common/Testprogramm.h"

#include <QtTest>

#ifdef MIT_FENSTERN
#include <QApplication>
using Anwendung = QApplication;
#else
#include <QGuiApplication>
using Anwendung = QGuiApplication;
#endif

namespace {

QList<QObject* (*)()>& Testklassen() {
    static QList<QObject* (*)()> Alle;
    return Alle;
}

} // namespace

bool TestklasseAnmelden(QObject* (*Erzeugen)()) {
    Testklassen().append(Erzeugen);
    return true;
}

/// Runs every class; with function names as arguments only those that have one of them. A closing line counts
/// all.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Anwendung Programm(argc, argv);
    Q_UNUSED(Programm)

    const QStringList Argumente = QCoreApplication::arguments();
    int Fehlgeschlagen = 0;
    for (const auto Erzeugen : Testklassen()) {
        const std::unique_ptr<QObject> Klasse(Erzeugen());
        // An argument "Klasse" or "Klasse:function" runs only that.
        QStringList Eigene{Argumente.first()};
        bool Gewaehlt = Argumente.size() == 1 || Argumente.at(1).startsWith(u'-');
        for (const QString& Argument : Argumente.mid(1)) {
            const QString Name = QString::fromLatin1(Klasse->metaObject()->className());
            if (Argument.startsWith(u'-'))
                Eigene.append(Argument);
            else if (Argument == Name)
                Gewaehlt = true;
            else if (Argument.startsWith(Name + u':')) {
                Gewaehlt = true;
                Eigene.append(Argument.mid(Name.size() + 1));
            }
        }
        if (Gewaehlt)
            Fehlgeschlagen += QTest::qExec(Klasse.get(), Eigene);
    }
    return Fehlgeschlagen == 0 ? 0 : 1;
}
