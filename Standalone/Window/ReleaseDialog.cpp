// Copyright Corvane. MIT License.
#include "ReleaseDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>

FReleaseDialog::FReleaseDialog(const QString& InVersion, const QString& InAddress, QWidget* Parent) : QDialog(Parent)
{
	setWindowTitle(QStringLiteral("Announce a Release"));
	Version = new QLineEdit(InVersion, this);
	Address = new QLineEdit(InAddress, this);
	Address->setMinimumWidth(360);
	auto* Form = new QFormLayout;
	Form->addRow(QStringLiteral("&Version"), Version);
	Form->addRow(QStringLiteral("&Address"), Address);
	auto* Buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
	Buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Announce"));
	connect(Buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
	connect(Buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
	auto* Column = new QVBoxLayout(this);
	Column->addLayout(Form);
	Column->addWidget(Buttons);
	Version->selectAll();
}
