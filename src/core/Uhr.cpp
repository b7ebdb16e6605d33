#include "core/Uhr.h"

namespace {

QDateTime Gestellt;

} // namespace

QDateTime Jetzt() {
    return Gestellt.isValid() ? Gestellt : QDateTime::currentDateTime();
}

QDate Heute() {
    return Jetzt().date();
}

void UhrStellen(const QDateTime& Zeit) {
    Gestellt = Zeit;
}
