// Copyright Corvane. MIT License.
#include "ZAVSpoutSenderInterface.h"

FZAVSpoutSenderInterface::FZAVSpoutSenderInterface() : bActive(false), RenderTarget(nullptr) {}

FZAVSpoutSenderInterface::FZAVSpoutSenderInterface(const FZAVSpoutSenderInterface& Other) = default;

FZAVSpoutSenderInterface& FZAVSpoutSenderInterface::operator=(const FZAVSpoutSenderInterface& Other) = default;

FZAVSpoutSenderInterface::~FZAVSpoutSenderInterface() = default;
