// The reference of a start: a bare main window.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication Programm(argc, argv);
    QMainWindow Fenster;
    Fenster.resize(1030, 700);
    Fenster.show();
    return QApplication::exec();
}
