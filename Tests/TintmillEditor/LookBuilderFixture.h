// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetTypeActions_TintmillObject.h"
#include "StandIn/LookBuilder.h"
#include "StandIn/PicturePass.h"
#include "Support/EventLog.h"
#include "Support/Printers.h"
#include "TintmillEditor/ModuleFixture.h"

#include <functional>
#include <memory>
#include <vector>

class FSceneViewport;
class FViewport;
class UTintmillObject;

/** Keeps what the look builder is asked for, and does what a test wants at each request. */
class FRecordingLookBuilder : public StandIn::ILookBuilder
{
public:
	virtual void Open(const StandIn::FLookBuilderRequest& Request) override;

	/** The names of the assets that it was opened on, separated by blanks. */
	std::string GetNames() const;

	std::vector<StandIn::FLookBuilderRequest> Requests;
	std::function<void(const StandIn::FLookBuilderRequest&)> WhenOpened;
};

/** A pass that changes nothing and tells of each draw. */
class FDrawWatch : public StandIn::IPicturePass
{
public:
	explicit FDrawWatch(std::function<void()> InWhenDrawn);
	virtual ~FDrawWatch() override;

	virtual FName GetName() const override { return FName(TEXT("DrawWatch")); }
	virtual void Apply(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels) override;
	virtual uint64 GetStateKey(FViewportClient* Client) const override;

private:
	std::function<void()> WhenDrawn;
};

/** An editor whose active pane shows a known picture of 6 x 4 pixels; the looks Teal, Amber and Rose are there. */
class FLookBuilderFixture : public FModuleFixture
{
protected:
	FLookBuilderFixture();
	virtual ~FLookBuilderFixture() override;

	/** Starts the editor with one pane, whose picture has this size. */
	void OpenEditor(const FIntPoint& Size = FIntPoint(6, 4));

	/** Notes from now on each "draw", "read" and "open" in Events. */
	void WatchEvents();

	/** A look of the project, loaded. */
	static UTintmillObject* LoadLook(const TCHAR* Name);

	/** An object of the editor that is no look. */
	static UObject* GetOtherObject();

	/** Opens assets as the asset tools do. */
	void Open(const TArray<UObject*>& Assets) { Actions.OpenAssetEditor(Assets); }

	/** The active pane's viewport. */
	static FViewport* GetActiveViewport();

	/** The record of the active pane, made if there is none. */
	static FTintmillDisplayConfiguration& GetRecord();

	/** Switches a look on in the active pane. */
	static void SwitchOn(const TCHAR* LookName, float Intensity = 1.0f);

	/** What the pane shows without a look: red, green, blue, alpha of each pixel. */
	static TArray<uint8> GetPlainPicture(const FIntPoint& Size = FIntPoint(6, 4));

	/** The pixel of the known picture at an index. */
	static FColor GetScenePixel(int32 Index);

	FRecordingLookBuilder Builder;
	FAssetTypeActions_TintmillObject Actions;
	FEventLog Events;

private:
	std::unique_ptr<FDrawWatch> DrawWatch;
	FDelegateHandle ReadHandle;
};
