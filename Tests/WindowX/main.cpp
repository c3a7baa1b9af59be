// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include "WindowStyle.h"
#include "XServer.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

int main(int ArgumentCount, char** Arguments)
{
	::testing::InitGoogleTest(&ArgumentCount, Arguments);
	const FXServer Server;
	if (Server.GetDisplay().empty())
	{
		std::fprintf(stderr, "Xvfb can't be started; `./quillon setup test` installs it\n");
		return 1;
	}
	::setenv("DISPLAY", Server.GetDisplay().c_str(), 1);
	::setenv("QT_QPA_PLATFORM", "xcb", 1);
	// Nobody is there to talk to, and what the bus's library allocates for it is never freed.
	::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
	QApplication Application(ArgumentCount, Arguments);
	FWindowStyle::Apply(Application);
	return RUN_ALL_TESTS();
}
