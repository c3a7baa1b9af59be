// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include "WindowStyle.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "TemporaryFolder.h"

namespace
{
	/** What this platform can't do is no news. */
	void PrintMessage(QtMsgType, const QMessageLogContext&, const QString& Message)
	{
		if (!Message.startsWith(QStringLiteral("This plugin does not support")))
		{
			std::fprintf(stderr, "%s\n", qPrintable(Message));
		}
	}
}

int main(int ArgumentCount, char** Arguments)
{
	::testing::InitGoogleTest(&ArgumentCount, Arguments);
	// Whatever display there is: the tests' windows must not be seen, and no screen must be smaller than they are.
	qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLON_SCREEN_FILE);
	// What a window remembers is none of the user's.
	const FTemporaryFolder Settings;
	qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(Settings.File("")));
	qInstallMessageHandler(&PrintMessage);
	QApplication Application(ArgumentCount, Arguments);
	FWindowStyle::Apply(Application);
	QApplication::setCursorFlashTime(0);
	QApplication::setQuitOnLastWindowClosed(false);
	return RUN_ALL_TESTS();
}
