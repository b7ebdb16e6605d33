#pragma once

#include <QApplication>

/// The application object: names, German language of Qt's own texts, and the last guard: what a handler
/// throws is reported, and the program goes on.
class Anwendung : public QApplication {
    Q_OBJECT

  public:
    Anwendung(int& Anzahl, char** Argumente);

    bool notify(QObject* Empfaenger, QEvent* Ereignis) override;
};
