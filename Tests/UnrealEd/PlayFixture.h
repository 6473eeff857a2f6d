// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Settings/LevelEditorPlaySettings.h"
#include "StandIn/ObjectSystem.h"
#include "StandIn/Registrations.h"
#include "Support/EditorFixture.h"
#include "UObject/Class.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include <utility>
#include <vector>

/** Notes the events of play with what a handler sees in them. */
class FPlayFixture : public FEditorFixture
{
protected:
	virtual void SetUp() override
	{
		FEditorFixture::SetUp();
		Bind(FEditorDelegates::PreBeginPIE, "PreBegin");
		Bind(FEditorDelegates::BeginPIE, "Begin");
		Bind(FEditorDelegates::PostPIEStarted, "PostStarted");
		Bind(FEditorDelegates::PrePIEEnded, "PreEnded");
		Bind(FEditorDelegates::EndPIE, "End");
		Bind(FEditorDelegates::PausePIE, "Pause");
		Bind(FEditorDelegates::ResumePIE, "Resume");
		Bind(FEditorDelegates::SingleStepPIE, "SingleStep");
		Bind(FEditorDelegates::OnPreSwitchBeginPIEAndSIE, "PreSwitch");
		Bind(FEditorDelegates::OnSwitchBeginPIEAndSIE, "Switch");
		Cancelled = FEditorDelegates::CancelPIE.AddLambda([this]() { Note("Cancel", false); });
		Created = UGameViewportClient::OnViewportCreated().AddLambda([this]() { Note("Created", false); });
		PreInit = FWorldDelegates::OnPreWorldInitialization.AddLambda(
			[this](UWorld* World, const UWorld::InitializationValues) { NoteWorld("PreInit", World); });
		PostInit = FWorldDelegates::OnPostWorldInitialization.AddLambda(
			[this](UWorld* World, const UWorld::InitializationValues) { NoteWorld("PostInit", World); });
		TearingDown = FWorldDelegates::OnWorldBeginTearDown.AddLambda([this](UWorld* World) { NoteWorld("TearDown", World); });
		Cleanup = FWorldDelegates::OnWorldCleanup.AddLambda([this](UWorld* World, bool, bool) { NoteWorld("Cleanup", World); });
	}

	virtual void TearDown() override
	{
		for (const std::pair<FEditorDelegates::FOnPIEEvent*, FDelegateHandle>& Bound : Bindings)
		{
			Bound.first->Remove(Bound.second);
		}
		FEditorDelegates::CancelPIE.Remove(Cancelled);
		UGameViewportClient::OnViewportCreated().Remove(Created);
		FWorldDelegates::OnPreWorldInitialization.Remove(PreInit);
		FWorldDelegates::OnPostWorldInitialization.Remove(PostInit);
		FWorldDelegates::OnWorldBeginTearDown.Remove(TearingDown);
		FWorldDelegates::OnWorldCleanup.Remove(Cleanup);
		FEditorFixture::TearDown();
	}

	void Bind(FEditorDelegates::FOnPIEEvent& Event, const std::string& Name)
	{
		Bindings.push_back({&Event, Event.AddLambda([this, Name](const bool bSimulating) { Note(Name, bSimulating); })});
	}

	void NoteWorld(const std::string& Name, UWorld* World)
	{
		if (World->WorldType == EWorldType::PIE)
		{
			Note(Name, false);
		}
	}

	void Note(const std::string& Name, bool bSimulating)
	{
		Log.Add(Name);
		Simulating.Add(Name + (bSimulating ? "1" : "0"));
		FViewport* PlayViewport = GEditor->GetPIEViewport();
		State.Add(Name + ":" + (GEditor->PlayWorld != nullptr ? "W" : "-") + (PlayViewport != nullptr ? "V" : "-")
			+ (PlayViewport != nullptr && PlayViewport->IsPlayInEditorViewport() ? "M" : "-")
			+ (GEditor->PlayWorld != nullptr && GEditor->PlayWorld->HasBegunPlay() ? "B" : "-"));
	}

	/** Returns the word that was noted with a name. */
	std::string StateAt(const std::string& Name) const
	{
		const std::string Padded = " " + State.Get() + " ";
		const size_t At = Padded.find(" " + Name + ":");
		return At == std::string::npos ? "never" : Padded.substr(At + Name.size() + 2, 4);
	}

	FEventLog Log;
	FEventLog Simulating;
	FEventLog State;

private:
	std::vector<std::pair<FEditorDelegates::FOnPIEEvent*, FDelegateHandle>> Bindings;
	FDelegateHandle Cancelled;
	FDelegateHandle Created;
	FDelegateHandle PreInit;
	FDelegateHandle PostInit;
	FDelegateHandle TearingDown;
	FDelegateHandle Cleanup;
};
