#include "core/Anzeigetext.h"

#include "core/Codeseite.h"

QString Anzeigetext(std::string_view Bytes) {
    constexpr std::size_t Zeigbar = 1000;
    const std::string_view Anfang = Bytes.substr(0, Zeigbar);
    const QString Text = AusCodeseite(Anfang.data(), static_cast<qsizetype>(Anfang.size()));
    return Bytes.size() > Zeigbar ? Text + QStringLiteral(" …") : Text;
}
