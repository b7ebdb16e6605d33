#include <QApplication>

int main(int argc, char** argv) {
    const QApplication Programm(argc, argv);
    return 0;
}
