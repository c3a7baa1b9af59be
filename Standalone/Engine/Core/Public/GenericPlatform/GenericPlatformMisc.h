// Copyright Corvane. MIT License.
#pragma once

/** The kinds of message boxes, by their buttons. */
namespace EAppMsgType
{
	enum Type
	{
		Ok,
		YesNo,
		OkCancel,
	};
}

/** The button that closed a message box. */
namespace EAppReturnType
{
	enum Type
	{
		No,
		Yes,
		Cancel,
		Ok,
	};
}
