// Copyright The Tintmill authors. All rights reserved.

#include "Engine/LocalPlayer.h"

#include "Engine/GameViewportClient.h"

UPlayer::UPlayer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{}

ULocalPlayer::ULocalPlayer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ViewportClient(nullptr)
	, ControllerId(0)
{}

void ULocalPlayer::PlayerAdded(UGameViewportClient* InViewportClient, int32 InControllerID)
{
	ViewportClient = InViewportClient;
	ControllerId = InControllerID;
}
