#include "frame/frmAbout.h"

#include "controls/Sinnbilder.h"
#include "core/Meldungen.h"
#include "frame/Programmname.h"
#include "ui_frmAbout.h"

namespace {

/// The system information program is one of Windows, found through its registry: it is nowhere else.
void SystemInfoZeigen() {
    MeldungZeigen(QStringLiteral("System Information Is Unavailable At This Time"));
}

} // namespace

frmAbout::frmAbout(QWidget* Eltern)
    : QDialog(Eltern)
    , ui(std::make_unique<Ui::frmAbout>()) {
    ui->setupUi(this);
    ui->picIcon->setPixmap(Programmsinnbild().pixmap(48, 48));
    ui->lblTitle->setText(Programmname);
    ui->lblVersion->setText(VersionsText());
    connect(ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdSysInfo, &QPushButton::clicked, this, SystemInfoZeigen);
}

frmAbout::~frmAbout() = default;

#include "moc_frmAbout.cpp"
