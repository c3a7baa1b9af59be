// Copyright Corvane. MIT License.
#include <cstdio>

#include "Misc/MessageDialog.h"

#include "Misc/CoreDelegates.h"

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle)
{
	if (FCoreDelegates::ModalErrorMessage.IsBound())
	{
		return FCoreDelegates::ModalErrorMessage.Execute(MessageType, Message, OptTitle ? *OptTitle : FText());
	}
	const FString Line = (OptTitle ? OptTitle->ToString() + TEXT(": ") : FString()) + Message.ToString();
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(Line));
	return GetDefaultAnswer(MessageType);
}

EAppReturnType::Type FMessageDialog::GetDefaultAnswer(EAppMsgType::Type MessageType)
{
	switch (MessageType)
	{
		case EAppMsgType::YesNo:
			return EAppReturnType::No;
		case EAppMsgType::OkCancel:
			return EAppReturnType::Cancel;
		default:
			return EAppReturnType::Ok;
	}
}
