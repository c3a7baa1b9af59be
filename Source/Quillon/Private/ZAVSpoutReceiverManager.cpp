// Copyright Corvane. MIT License.
#include "ZAVSpoutReceiverManager.h"

#include "Components/SceneComponent.h"

AZAVSpoutReceiverManager::AZAVSpoutReceiverManager()
{
	// Without a root the manager could not be placed or moved.
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
	SpoutReceivers.Add(FZAVSpoutReceiverInterface());
}
