// Copyright Corvane. MIT License.
#include "ZAVCineCamCapture.h"

#include "ZAVCaptureComponent.h"

AZAVCineCamCapture::AZAVCineCamCapture()
{
	CaptureComponent = CreateDefaultSubobject<UZAVCaptureComponent>(TEXT("CaptureComponent"));
	RootComponent = CaptureComponent;
}
