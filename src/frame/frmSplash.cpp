#include "frame/frmSplash.h"

#include "controls/Sinnbilder.h"
#include "frame/Programmname.h"
#include "ui_frmSplash.h"

#include <QCoreApplication>

frmSplash::frmSplash()
    : QFrame(nullptr, Qt::SplashScreen)
    , ui(std::make_unique<Ui::frmSplash>()) {
    ui->setupUi(this);
    ui->picLogo->setPixmap(Programmsinnbild().pixmap(96, 96));
    ui->lblProductName->setText(Programmname);
    ui->lblVersion->setText(VersionsText());
}

frmSplash::~frmSplash() = default;

void frmSplash::Zeigen() {
    show();
    repaint();
    // A window of X11 is painted only when the server has shown it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

#include "moc_frmSplash.cpp"
