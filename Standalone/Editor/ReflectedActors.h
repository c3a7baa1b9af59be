// Copyright Corvane. MIT License.
#pragma once

#include "CreateReport.h"

#include "CoreMinimal.h"

class AActor;

/**
 * The plugin's actors, read through reflection: the editor links none of the plugin's modules, so any build of them
 * does. A class or property that is missing under its agreed name is fatal.
 */
class FReflectedActors
{
public:
	/** @return the open level's sender managers in iteration order. */
	static TArray<AActor*> FindSenderManagers();

	static int32 CountSenders(const AActor* Manager);

	static FCreateReport::FSender DescribeSender(const AActor* Manager, int32 Index);

	/** @return the one selected actor if it is a camera, else null. */
	static const AActor* FindSelectedCamera();

	static FCreateReport::FCamera DescribeCamera(const AActor* Camera);
};
