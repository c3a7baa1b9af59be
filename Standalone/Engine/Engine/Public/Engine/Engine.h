// Copyright Corvane. MIT License.
#pragma once

class UWorld;

/** A place for one world at a time: the editor's is that of the open level. */
struct FWorldContext
{
	UWorld* World() const { return ThisCurrentWorld; }
	void SetCurrentWorld(UWorld* InWorld) { ThisCurrentWorld = InWorld; }

private:
	/** Not kept from the collector: a world is in the root set by itself. */
	UWorld* ThisCurrentWorld = nullptr;
};
