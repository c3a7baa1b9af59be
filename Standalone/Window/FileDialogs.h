// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "FileActions.h"

/** The dialogs that a person answers. */
class FFileDialogs
{
public:
	static FFileActions::EAnswer AskToSave(QWidget& Window, const QString& Name);
	static QString PickFileToOpen(QWidget& Window, const QString& Folder);
	static QString PickFileToSave(QWidget& Window, const QString& Suggestion);
	static void ShowError(QWidget& Window, const QString& Line);
};
