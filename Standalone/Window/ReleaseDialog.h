// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <QDialog>

/** Asks which release to announce. */
class FReleaseDialog : public QDialog
{
public:
	FReleaseDialog(const QString& InVersion, const QString& InAddress, QWidget* Parent);

	QString GetVersion() const { return Version->text(); }
	QString GetAddress() const { return Address->text(); }

private:
	QLineEdit* Version;
	QLineEdit* Address;
};
