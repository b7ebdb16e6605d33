#include "common/Unprivilegiert.h"

#include <QDirIterator>
#include <QFile>

#include <unistd.h>

namespace {

constexpr uid_t Niemand = 65'534;

void Uebergeben(const QString& Pfad) {
    if (::lchown(QFile::encodeName(Pfad).constData(), Niemand, static_cast<gid_t>(-1)) != 0)
        qFatal("lchown");
}

} // namespace

Unprivilegiert::Unprivilegiert(const QString& Ordner) {
    if (::geteuid() != 0)
        return;
    Uebergeben(Ordner);
    QDirIterator Alle(Ordner, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (Alle.hasNext())
        Uebergeben(Alle.next());
    if (::seteuid(Niemand) != 0)
        qFatal("seteuid");
}

Unprivilegiert::~Unprivilegiert() {
    if (::getuid() == 0 && ::seteuid(0) != 0)
        qFatal("seteuid");
}
