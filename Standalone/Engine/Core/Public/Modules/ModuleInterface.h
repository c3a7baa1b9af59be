// Copyright Corvane. MIT License.
#pragma once

/** What each module derives its one object from. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() {}

	/** Called once, right after the object was made. */
	virtual void StartupModule() {}

	/** Called once, right before the object is deleted. */
	virtual void ShutdownModule() {}

	/** False keeps the module loaded when everything else is unloaded at exit. */
	virtual bool SupportsAutomaticShutdown() { return true; }
};
