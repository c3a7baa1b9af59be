// Copyright Corvane. MIT License.
#include "ZAVSpoutReceiverManager.h"

AZAVSpoutReceiverManager::AZAVSpoutReceiverManager()
{
	SpoutReceivers.Add(FZAVSpoutReceiverInterface());
}
