// Copyright Corvane. MIT License.
#include "WindowText.h"

QString FWindowText::ToQt(const FString& Text)
{
	return QString(reinterpret_cast<const QChar*>(*Text), Text.Len());
}

FString FWindowText::FromQt(const QString& Text)
{
	return Text.isEmpty() ? FString()
						  : FString(static_cast<int32>(Text.size()), reinterpret_cast<const TCHAR*>(Text.utf16()));
}

QString FWindowText::ForCaption(const FString& Text)
{
	QString Caption;
	Caption.reserve(Text.Len());
	for (const QChar Unit : ToQt(Text))
	{
		const bool bBreak = Unit.category() == QChar::Other_Control || Unit == QChar::LineSeparator ||
			Unit == QChar::ParagraphSeparator;
		Caption += bBreak ? QChar(u' ') : Unit;
		// Qt underlines what follows a single one.
		if (Unit == u'&')
		{
			Caption += u'&';
		}
	}
	return Caption;
}
