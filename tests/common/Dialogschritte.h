#pragma once

#include <QDialog>
#include <QList>
#include <QObject>

#include <functional>

/// Plays what a user does in the modal dialogs that a test opens: each step waits until the dialog of its
/// name is in front, and runs once. A dialog that no step expects is closed and fails the test, and so does a
/// step whose dialog never came (checked in the destructor).
class Dialogschritte : public QObject {
    Q_OBJECT

  public:
    Dialogschritte();
    ~Dialogschritte() override;

    void Erwarte(const QString& Name, std::function<void(QDialog&)> Schritt);

  private:
    struct Eintrag {
        QString Name;
        std::function<void(QDialog&)> Schritt;
    };

    void Nachsehen();
    void Melden(const QString& Text);

    QList<Eintrag> Schritte;
    int Versuche = 0;
};
