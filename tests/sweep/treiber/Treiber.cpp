#include "treiber/Treiber.h"

#include "treiber/Handgriffe.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>
#include <QThread>

#include <unistd.h>

const Treiber::Regel Treiber::Regeln[] = {
    {"warte", 1, &Treiber::Warte, false},   {"warteMs", 1, &Treiber::WarteMs, true},
    {"aktion", 1, &Treiber::Aktion, false}, {"klick", 1, &Treiber::Klick, false},
    {"text", 2, &Treiber::Text, false},     {"taste", 2, &Treiber::Taste, false},
    {"wahl", 2, &Treiber::Wahl, false},     {"reiter", 2, &Treiber::Reiter, false},
    {"zelle", 3, &Treiber::Zelle, false},   {"knopf", 1, &Treiber::Knopf, true},
    {"datei", 1, &Treiber::Datei, true},    {"antworten", 1, &Treiber::Antworten, true},
    {"lies", 2, &Treiber::Lies, true},      {"gitter", 1, &Treiber::Gitter, true},
    {"bild", 1, &Treiber::Bild, true},      {"melde", 1, &Treiber::Melde, true},
};

Treiber::Treiber(const QList<Befehl>& Befehle, const QString& Protokollpfad, int FristMs)
    : Skript(Befehle)
    , Frist(FristMs)
    , Protokoll(Protokollpfad) {
    if (!Protokoll.open(QIODevice::Append | QIODevice::Unbuffered))
        qFatal("Treiber: Protokoll nicht beschreibbar: %s", qPrintable(Protokollpfad));
    connect(&Uhrwerk, &QTimer::timeout, this, &Treiber::Takt);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { Melden(QStringLiteral("ENDE"), {}); });
    Schrittzeit.start();
    Uhrwerk.start(1);
}

const Treiber::Regel* Treiber::RegelFuer(const Befehl& Einer) {
    for (const Regel& Eine : Regeln)
        if (Einer.Name == QLatin1String(Eine.Name) && Einer.Argumente.size() == Eine.Argumente)
            return &Eine;
    return nullptr;
}

/// One step if it can be done now. Runs in nested event loops too.
void Treiber::Takt() {
    if (Unbegonnen > 0 || FensterGehtNoch())
        return;
    if (KastenBeantworten()) {
        Schrittzeit.restart();
        return;
    }
    if (Naechster >= Skript.size())
        return;
    const Befehl& Einer = Skript[Naechster];
    switch (Schritt(Einer)) {
    case Stand::Fertig:
        ++Naechster;
        Schrittzeit.restart();
        return;
    case Stand::Falsch:
        Aufgeben(QStringLiteral("Zeile %1: \"%2\" geht nicht").arg(QString::number(Einer.Zeile), Einer.Name));
    case Stand::Wartend:
        if (Schrittzeit.elapsed() > Frist)
            Aufgeben(QStringLiteral("Zeile %1: \"%2 %3\" kam nicht zustande")
                         .arg(QString::number(Einer.Zeile), Einer.Name, Einer.Argumente.join(u' ')));
    }
}

/// A box or file dialog that no step waits for gets the first standing answer that it offers.
bool Treiber::KastenBeantworten() {
    QWidget* const Kasten = OffenerKasten() ? static_cast<QWidget*>(OffenerKasten()) : OffenerDateidialog();
    const QString Erwarteter = Naechster < Skript.size() ? Skript[Naechster].Name : QString();
    const QString Passender = OffenerKasten() ? QStringLiteral("knopf") : QStringLiteral("datei");
    if (!Kasten || Erwarteter == Passender || Standantworten.isEmpty())
        return false;
    const QString Text = OffenerKasten() ? OffenerKasten()->text() : Kasten->windowTitle();
    Melden(QStringLiteral("KASTEN"), Text);
    for (const QString& Antwort : Standantworten) {
        if (QAbstractButton* const Einer = KnopfFinden(Kasten, Antwort)) {
            Beantworten(Kasten, [Einer] { Einer->click(); });
            return true;
        }
    }
    Aufgeben(QStringLiteral("keine Antwort auf: ") + Text);
}

Treiber::Stand Treiber::Schritt(const Befehl& Einer) {
    const Regel* const Eine = RegelFuer(Einer);
    if (!Eine)
        return Stand::Falsch;
    if ((OffenerKasten() || OffenerDateidialog()) && !Eine->BeiKasten)
        return Stand::Wartend;
    return (this->*Eine->Ausfuehren)(Einer.Argumente);
}

/// A box that was answered is closed, but its caller has not yet gone on: what it does with the answer is
/// still to come.
bool Treiber::FensterGehtNoch() const {
    const QWidget* Fenster = Beantwortetes; // held once: a QPointer could be empty at the second look
    return Fenster && !Fenster->isVisible() && thread()->loopLevel() >= Stufe &&
           !QApplication::activeModalWidget();
}

void Treiber::Beantworten(QWidget* Fenster, const std::function<void()>& Tat) {
    Beantwortetes = Fenster;
    Stufe = thread()->loopLevel();
    Spaeter(Tat);
}

/// What may open a box runs from the event queue: the clock goes on meanwhile.
void Treiber::Spaeter(const std::function<void()>& Tat) {
    ++Unbegonnen;
    QMetaObject::invokeMethod(
        this,
        [this, Tat] {
            --Unbegonnen;
            Tat();
        },
        Qt::QueuedConnection);
}

/// A user's keys reach only the active window; after a box another may be. Where no window manager answers,
/// the step goes on after a while.
bool Treiber::Aktiviert(const QWidget* Ziel) const {
    constexpr int Geduld = 1000;
    if (Ziel->window()->isActiveWindow() || Schrittzeit.elapsed() > Geduld)
        return true;
    Ziel->window()->activateWindow();
    return false;
}

Treiber::Stand Treiber::AnWidget(const QString& Name, const std::function<void(QWidget*)>& Tat) {
    QWidget* const Ziel = Name == QStringLiteral("-") ? QApplication::focusWidget() : Finden(Name);
    if (!Ziel || !Aktiviert(Ziel))
        return Stand::Wartend;
    Spaeter([Ziel, Tat] { Tat(Ziel); });
    return Stand::Fertig;
}

void Treiber::Melden(const QString& Art, const QString& Text) {
    QString Zeile = Text;
    Protokoll.write((Art + u' ' + Zeile.replace(u'\n', QStringLiteral("\\n")) + u'\n').toUtf8());
}

void Treiber::Aufgeben(const QString& Grund) {
    Melden(QStringLiteral("FEHLER"), Grund);
    if (const QMessageBox* Kasten = OffenerKasten())
        Melden(QStringLiteral("KASTEN"), Kasten->text());
    ::_exit(3);
}

Treiber::Stand Treiber::Warte(const QStringList& Worte) {
    return Finden(Worte[0]) ? Stand::Fertig : Stand::Wartend;
}

Treiber::Stand Treiber::WarteMs(const QStringList& Worte) {
    return Schrittzeit.elapsed() >= Worte[0].toInt() ? Stand::Fertig : Stand::Wartend;
}

Treiber::Stand Treiber::Aktion(const QStringList& Worte) {
    QAction* const Eine = AktionFinden(Worte[0]);
    if (!Eine || !Eine->isEnabled())
        return Stand::Wartend;
    Spaeter([Eine] { Eine->trigger(); });
    return Stand::Fertig;
}

Treiber::Stand Treiber::Klick(const QStringList& Worte) {
    return AnWidget(Worte[0], [](QWidget* Ziel) { QTest::mouseClick(Ziel, Qt::LeftButton); });
}

Treiber::Stand Treiber::Text(const QStringList& Worte) {
    return AnWidget(Worte[0], [Worte](QWidget* Ziel) { Tippen(Ziel, Worte[1]); });
}

Treiber::Stand Treiber::Taste(const QStringList& Worte) {
    return AnWidget(Worte[0], [Worte](QWidget* Ziel) { TasteDruecken(Ziel, Worte[1]); });
}

Treiber::Stand Treiber::Wahl(const QStringList& Worte) {
    return AnWidget(Worte[0], [this, Worte](QWidget* Ziel) {
        if (!EintragWaehlen(Ziel, Worte[1]))
            Aufgeben(QStringLiteral("kein Eintrag ") + Worte[1]);
    });
}

Treiber::Stand Treiber::Reiter(const QStringList& Worte) {
    return AnWidget(Worte[0], [Worte](QWidget* Ziel) {
        if (auto* Karten = qobject_cast<QTabWidget*>(Ziel))
            Karten->setCurrentIndex(Worte[1].toInt());
    });
}

Treiber::Stand Treiber::Zelle(const QStringList& Worte) {
    return AnWidget(Worte[0], [this, Worte](QWidget* Ziel) {
        if (!QMetaObject::invokeMethod(Ziel, "Enter", Q_ARG(int, Worte[1].toInt()),
                                       Q_ARG(int, Worte[2].toInt())))
            Aufgeben(Worte[0] + QStringLiteral(" ist kein Gitter"));
    });
}

Treiber::Stand Treiber::Knopf(const QStringList& Worte) {
    QWidget* const Fenster = QApplication::activeModalWidget();
    if (!Fenster || !Fenster->isVisible())
        return Stand::Wartend;
    if (const auto* Kasten = qobject_cast<QMessageBox*>(Fenster))
        Melden(QStringLiteral("KASTEN"), Kasten->text());
    QAbstractButton* const Einer = KnopfFinden(Fenster, Worte[0]);
    if (!Einer)
        return Stand::Falsch;
    Beantworten(Fenster, [Einer] { Einer->click(); });
    return Stand::Fertig;
}

Treiber::Stand Treiber::Datei(const QStringList& Worte) {
    QFileDialog* const Dialog = OffenerDateidialog();
    if (!Dialog)
        return Stand::Wartend;
    Beantworten(Dialog, [Dialog, Worte] { DateiEintragen(Dialog, Worte[0]); });
    return Stand::Fertig;
}

Treiber::Stand Treiber::Antworten(const QStringList& Worte) {
    Standantworten = Worte[0].split(u'|', Qt::SkipEmptyParts);
    return Stand::Fertig;
}

Treiber::Stand Treiber::Lies(const QStringList& Worte) {
    QWidget* const Ziel = Finden(Worte[0]);
    if (!Ziel)
        return Stand::Wartend;
    Melden(Worte[0] + u'.' + Worte[1], EigenschaftText(Ziel, Worte[1]));
    return Stand::Fertig;
}

Treiber::Stand Treiber::Gitter(const QStringList& Worte) {
    QWidget* const Ziel = Finden(Worte[0]);
    if (!Ziel)
        return Stand::Wartend;
    for (const QString& Zeile : GitterZeilen(Ziel))
        Melden(Worte[0], Zeile);
    return Stand::Fertig;
}

Treiber::Stand Treiber::Bild(const QStringList& Worte) {
    QWidget* const Fenster = QApplication::activeWindow();
    if (!Fenster)
        return Stand::Wartend;
    return Fenster->grab().save(Worte[0]) ? Stand::Fertig : Stand::Falsch;
}

Treiber::Stand Treiber::Melde(const QStringList& Worte) {
    Melden(QStringLiteral("MELDUNG"), Worte[0]);
    return Stand::Fertig;
}

namespace {

/// Runs when the program makes its application object; without a script the library does nothing.
void TreiberStarten() {
    QFile Datei(qEnvironmentVariable("TREIBER_SKRIPT"));
    if (Datei.fileName().isEmpty())
        return;
    QString Grund;
    if (!Datei.open(QIODevice::ReadOnly))
        qFatal("Treiber: Skript nicht lesbar: %s", qPrintable(Datei.fileName()));
    const auto Skript = SkriptLesen(QString::fromUtf8(Datei.readAll()), &Grund);
    if (!Skript)
        qFatal("Treiber: %s", qPrintable(Grund));
    bool Gesetzt = false;
    const int Frist = qEnvironmentVariableIntValue("TREIBER_FRIST", &Gesetzt);
    auto* const Einer =
        new Treiber(*Skript, qEnvironmentVariable("TREIBER_PROTOKOLL"), Gesetzt ? Frist : 10'000);
    Einer->setParent(qApp);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(TreiberStarten)
