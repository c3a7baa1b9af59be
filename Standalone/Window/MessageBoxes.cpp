// Copyright Corvane. MIT License.
#include "MessageBoxes.h"

#include "Misc/CoreDelegates.h"
#include "WindowText.h"

namespace
{
	QMessageBox::StandardButtons GetButtons(EAppMsgType::Type Kind)
	{
		switch (Kind)
		{
			case EAppMsgType::YesNo:
				return QMessageBox::Yes | QMessageBox::No;
			case EAppMsgType::OkCancel:
				return QMessageBox::Ok | QMessageBox::Cancel;
			default:
				return QMessageBox::Ok;
		}
	}
}

FMessageBoxes::FMessageBoxes(QWidget& InParent) : Parent(InParent)
{
	FCoreDelegates::ModalErrorMessage = FCoreDelegates::FOnModalMessageBox::CreateRaw(this, &FMessageBoxes::Show);
}

FMessageBoxes::~FMessageBoxes()
{
	FCoreDelegates::ModalErrorMessage.Unbind();
}

EAppReturnType::Type FMessageBoxes::Show(EAppMsgType::Type Kind, const FText& Message, const FText& Title)
{
	QMessageBox Box(&Parent);
	Box.setWindowTitle(Title.IsEmpty() ? QStringLiteral("Message") : FWindowText::ToQt(Title));
	Box.setTextFormat(Qt::PlainText);
	Box.setText(FWindowText::ToQt(Message));
	Box.setStandardButtons(GetButtons(Kind));
	// Closing it without a choice is the answer that starts nothing.
	switch (Box.exec())
	{
		case QMessageBox::Yes:
			return EAppReturnType::Yes;
		case QMessageBox::Ok:
			return EAppReturnType::Ok;
		case QMessageBox::Cancel:
			return EAppReturnType::Cancel;
		default:
			return Kind == EAppMsgType::Ok   ? EAppReturnType::Ok
				: Kind == EAppMsgType::YesNo ? EAppReturnType::No
											 : EAppReturnType::Cancel;
	}
}
