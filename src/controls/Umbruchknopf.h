#pragma once

#include <QCheckBox>
#include <QRadioButton>

/// A check box or radio button whose caption breaks over as many lines as the width asks for; Qt's own show
/// one line only. The mark stands beside the first line, and a click anywhere on the caption counts.
template <class Knopf>
class Umbruchknopf : public Knopf {
  public:
    explicit Umbruchknopf(QWidget* Eltern = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int Breite) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool hitButton(const QPoint& Ort) const override { return this->rect().contains(Ort); }
    void paintEvent(QPaintEvent* Ereignis) override;

  private:
    int Textanfang() const;
    int Texthoehe(int Breite) const;
};

extern template class Umbruchknopf<QCheckBox>;
extern template class Umbruchknopf<QRadioButton>;

// Names for the form files.
class Umbruchkasten : public Umbruchknopf<QCheckBox> {
  public:
    using Umbruchknopf::Umbruchknopf;
};
class Umbruchradio : public Umbruchknopf<QRadioButton> {
  public:
    using Umbruchknopf::Umbruchknopf;
};
