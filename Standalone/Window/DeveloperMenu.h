// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

struct FWindowContext;

/** What the plugin's developers try out: a release that is announced, garbage that is collected. */
class FDeveloperMenu : public QMenu
{
public:
	explicit FDeveloperMenu(FWindowContext& InContext, QWidget* Parent = nullptr);

	/** Announces the release that is asked for; those who listen get texts as they were typed. */
	void AnnounceRelease();
	void CollectNow();

	/** The dialog: changes both, which hold what was last announced. @return false for none. */
	std::function<bool(QString& Version, QString& Address)> AskForRelease;

private:
	FWindowContext& Context;
	QString Version = QStringLiteral("2.1");
	QString Address = QStringLiteral("https://corvane.example/download/Release_2.1.zip");
};
