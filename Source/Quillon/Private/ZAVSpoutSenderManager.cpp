// Copyright Corvane. MIT License.
#include "ZAVSpoutSenderManager.h"

#include "Components/SceneComponent.h"

AZAVSpoutSenderManager::AZAVSpoutSenderManager()
{
	// Without a root the manager could not be placed or moved.
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
