#include "controls/Umbruchknopf.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <type_traits>

namespace {

constexpr int Textmerkmale = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
/// Width of the caption, in average letters, that a layout without other wishes gives.
constexpr int Wunschbreite = 80;
constexpr int Mindestbreite = 30;

/// What differs between the two kinds.
template <class Knopf>
struct Teile {
    static constexpr bool IstRadio = std::is_same_v<Knopf, QRadioButton>;
    static constexpr auto Breite = IstRadio ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth;
    static constexpr auto Hoehe = IstRadio ? QStyle::PM_ExclusiveIndicatorHeight : QStyle::PM_IndicatorHeight;
    static constexpr auto Abstand =
        IstRadio ? QStyle::PM_RadioButtonLabelSpacing : QStyle::PM_CheckBoxLabelSpacing;
    static constexpr auto Marke = IstRadio ? QStyle::PE_IndicatorRadioButton : QStyle::PE_IndicatorCheckBox;
};

} // namespace

template <class Knopf>
Umbruchknopf<Knopf>::Umbruchknopf(QWidget* Eltern)
    : Knopf(Eltern) {
    QSizePolicy Verhalten(QSizePolicy::Preferred, QSizePolicy::Preferred);
    Verhalten.setHeightForWidth(true);
    this->setSizePolicy(Verhalten);
}

template <class Knopf>
int Umbruchknopf<Knopf>::Textanfang() const {
    return this->style()->pixelMetric(Teile<Knopf>::Breite, nullptr, this) +
           this->style()->pixelMetric(Teile<Knopf>::Abstand, nullptr, this);
}

template <class Knopf>
int Umbruchknopf<Knopf>::Texthoehe(int Breite) const {
    constexpr int Unbegrenzt = 10000;
    return this->fontMetrics()
        .boundingRect(QRect(0, 0, Breite, Unbegrenzt), Textmerkmale, this->text())
        .height();
}

template <class Knopf>
int Umbruchknopf<Knopf>::heightForWidth(int Breite) const {
    const int Marke = this->style()->pixelMetric(Teile<Knopf>::Hoehe, nullptr, this);
    return qMax(Marke, Texthoehe(qMax(1, Breite - Textanfang()))) + 2;
}

template <class Knopf>
QSize Umbruchknopf<Knopf>::sizeHint() const {
    const int Breite = Textanfang() + Wunschbreite * this->fontMetrics().averageCharWidth();
    return {Breite, heightForWidth(Breite)};
}

template <class Knopf>
QSize Umbruchknopf<Knopf>::minimumSizeHint() const {
    return {Textanfang() + Mindestbreite * this->fontMetrics().averageCharWidth(),
            this->fontMetrics().height() + 2};
}

template <class Knopf>
void Umbruchknopf<Knopf>::paintEvent(QPaintEvent* /*Ereignis*/) {
    QStyleOptionButton Option;
    this->initStyleOption(&Option);
    QStylePainter Maler(this);
    const int Zeile = this->fontMetrics().height();
    const QSize Marke(this->style()->pixelMetric(Teile<Knopf>::Breite, &Option, this),
                      this->style()->pixelMetric(Teile<Knopf>::Hoehe, &Option, this));
    const QRect Text = this->rect().adjusted(Textanfang(), 1, 0, -1);

    Option.rect = QRect(QPoint(0, 1 + qMax(0, (Zeile - Marke.height()) / 2)), Marke);
    Maler.drawPrimitive(Teile<Knopf>::Marke, Option);
    Maler.drawItemText(Text, Textmerkmale, this->palette(), this->isEnabled(), this->text(),
                       QPalette::WindowText);
    if (this->hasFocus()) {
        QStyleOptionFocusRect Rahmen;
        Rahmen.initFrom(this);
        Rahmen.rect = QRect(Text.topLeft(), QSize(Text.width(), Texthoehe(Text.width())));
        Rahmen.backgroundColor = this->palette().window().color();
        Maler.drawPrimitive(QStyle::PE_FrameFocusRect, Rahmen);
    }
}

template class Umbruchknopf<QCheckBox>;
template class Umbruchknopf<QRadioButton>;
