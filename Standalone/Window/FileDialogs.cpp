// Copyright Corvane. MIT License.
#include "FileDialogs.h"

namespace
{
	QString GetFilter()
	{
		return QStringLiteral("Levels (*.json);;All files (*)");
	}
}

FFileActions::EAnswer FFileDialogs::AskToSave(QWidget& Window, const QString& Name)
{
	QMessageBox Box(QMessageBox::Warning, QStringLiteral("Unsaved Changes"),
		QStringLiteral("Save the changes in %1?").arg(Name), QMessageBox::NoButton, &Window);
	Box.setTextFormat(Qt::PlainText);
	Box.setInformativeText(QStringLiteral("What is not saved will be lost."));
	const QPushButton* Save = Box.addButton(QStringLiteral("&Save"), QMessageBox::AcceptRole);
	const QPushButton* Discard = Box.addButton(QStringLiteral("&Don't Save"), QMessageBox::DestructiveRole);
	Box.setEscapeButton(Box.addButton(QMessageBox::Cancel));
	Box.exec();
	if (Box.clickedButton() == Save)
	{
		return FFileActions::EAnswer::Save;
	}
	return Box.clickedButton() == Discard ? FFileActions::EAnswer::Discard : FFileActions::EAnswer::Cancel;
}

QString FFileDialogs::PickFileToOpen(QWidget& Window, const QString& Folder)
{
	return QFileDialog::getOpenFileName(&Window, QStringLiteral("Open Level"), Folder, GetFilter());
}

QString FFileDialogs::PickFileToSave(QWidget& Window, const QString& Suggestion)
{
	QFileDialog Dialog(&Window, QStringLiteral("Save Level As"), Suggestion, GetFilter());
	Dialog.setAcceptMode(QFileDialog::AcceptSave);
	// Asks before it replaces the file of that whole name.
	Dialog.setDefaultSuffix(QStringLiteral("json"));
	Dialog.selectFile(Suggestion);
	const bool bPicked = Dialog.exec() == QDialog::Accepted && !Dialog.selectedFiles().isEmpty();
	return bPicked ? Dialog.selectedFiles().first() : QString();
}

void FFileDialogs::ShowError(QWidget& Window, const QString& Line)
{
	QMessageBox Box(QMessageBox::Critical, QStringLiteral("Level"), Line, QMessageBox::Ok, &Window);
	Box.setTextFormat(Qt::PlainText);
	Box.exec();
}
