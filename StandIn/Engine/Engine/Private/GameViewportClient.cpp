// Copyright The Tintmill authors. All rights reserved.

#include "Engine/GameViewportClient.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/LocalPlayer.h"
#include "Engine/World.h"

UScriptViewportClient::UScriptViewportClient(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{}

UGameViewportClient::UGameViewportClient(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Viewport(nullptr)
	, ViewportFrame(nullptr)
	, World(nullptr)
	, GameInstance(nullptr)
{}

void UGameViewportClient::Init(FWorldContext& WorldContext, UGameInstance* OwningGameInstance, bool)
{
	World = WorldContext.World();
	GameInstance = OwningGameInstance;
}

void UGameViewportClient::SetViewportFrame(FViewportFrame* InViewportFrame)
{
	ViewportFrame = InViewportFrame;
	SetViewport(ViewportFrame != nullptr ? ViewportFrame->GetViewport() : nullptr);
}

void UGameViewportClient::SetViewport(FViewport* InViewportFrame)
{
	Viewport = InViewportFrame;
}

ULocalPlayer* UGameViewportClient::SetupInitialLocalPlayer(FString& OutError)
{
	if (GameInstance == nullptr)
	{
		OutError = TEXT("The game viewport has no game instance.");
		return nullptr;
	}
	return GameInstance->CreateInitialPlayer(OutError);
}

void UGameViewportClient::DetachViewportClient()
{
	SetViewportFrame(nullptr);
	World = nullptr;
}

UWorld* UGameViewportClient::GetWorld() const
{
	return World;
}

void UGameViewportClient::RedrawRequested(FViewport*)
{
	// A game is drawn every tick anyway.
}

void UGameViewportClient::CloseRequested(FViewport* InViewport)
{
	check(InViewport == Viewport);
	if (CloseRequestedDelegate.IsBound())
	{
		CloseRequestedDelegate.Broadcast(InViewport);
	}
	SetViewportFrame(nullptr);
}

FSimpleMulticastDelegate& UGameViewportClient::OnViewportCreated()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}
