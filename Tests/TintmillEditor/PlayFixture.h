// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "TintmillEditor/ModuleFixture.h"

#include "PlayInEditorDataTypes.h"

#include <string>

class FLevelEditorViewportClient;
class UGameViewportClient;
class UTintmillObject;

/** An editor with panes in which play is started and ended as a person does it. The looks Teal and Amber are there. */
class FPlayFixture : public FModuleFixture
{
protected:
	FPlayFixture();
	virtual ~FPlayFixture() override;

	/** The look of a name. */
	static UTintmillObject* LoadLook(const TCHAR* Name);

	/** The live record of a pane, made if there is none. */
	static FTintmillDisplayConfiguration& Record(int32 Number);

	/** Gives a pane a look, or takes it away for an empty name. */
	static void Display(int32 Number, bool bEnable, float Intensity, const TCHAR* Look);

	/** Makes a pane the one that is worked in. */
	static void Activate(int32 Number);

	/** Asks for play from a pane that becomes the active one, in that pane, and runs the frame that starts it. */
	void PlayInPane(int32 Number, EPlaySessionWorldType WorldType = EPlaySessionWorldType::PlayInEditor);

	/** Asks for play from a pane that becomes the active one, in a window, and runs the frame that starts it. */
	void PlayInWindow(int32 Number);

	/** Asks for the end of play and runs the frame that ends it. */
	void EndPlay();

	/** Sets how many game viewports a session opens. */
	static void SetPlayers(int32 Number);

	/** The client of the latest game viewport; null outside of play. */
	static FViewportClient* GetGameClient();

	/** The record of a client in words: "on 0.5 Teal", "off 1 none"; "nothing" for no record. */
	static std::string Describe(const FViewportClient* Client);

	/** The record of the latest game viewport in words. */
	static std::string DescribeGame() { return Describe(GetGameClient()); }

	/** The records of all panes in words. */
	static std::string DescribePanes();

	/** How many of an owner's bindings to feature levels of living worlds there are. */
	static int32 CountFeatureLevelHandlers(const void* Owner);

	/** What a new record holds. */
	static constexpr const char* Defaults = "off 1 none";

private:
	void Play(int32 Number, const FRequestPlaySessionParams& Params);
};

/** Runs a function at each event of a delegate while it lives. */
template <typename DelegateType>
class TWhenever
{
public:
	template <typename FunctionType>
	TWhenever(DelegateType& InDelegate, FunctionType Function)
		: Delegate(InDelegate)
		, Handle(InDelegate.AddLambda(Function))
	{}
	~TWhenever() { Delegate.Remove(Handle); }
	TWhenever(const TWhenever&) = delete;
	TWhenever& operator=(const TWhenever&) = delete;

private:
	DelegateType& Delegate;
	FDelegateHandle Handle;
};
