// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/EngineLoop.h"
#include "TintmillEditor/CapturedLog.h"
#include "Support/TestFolder.h"
#include "TintmillDisplayConfiguration.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

class FTintmillDisplayManager;
class FViewportClient;
class IModuleInterface;
class SLevelViewport;

/** An editor on an empty project of its own. The module is loaded as the editor loads it, and taken down with the engine. */
class FModuleFixture : public testing::Test
{
protected:
	FModuleFixture();
	virtual ~FModuleFixture() override;

	/** Writes a look file that changes the picture, and so makes the asset /Game/Looks/<Name>. */
	void WriteLook(const std::string& Name) const;

	/** Writes the project's user settings: the pairs of the module's section, as they stand in the file. */
	void WriteSettings(const std::vector<std::string>& Pairs) const;

	/** A pair as it stands in the file. An empty look means none. */
	static std::string MakePair(const std::string& Key, bool bEnable, const std::string& Intensity, const std::string& Look);

	/** The pairs that the project's user settings hold on disk. */
	std::vector<std::string> ReadSettings() const;

	/** Starts the engine up to the point where modules are loaded and GEditor is not made yet. */
	void PreInit();

	/** Starts the engine up to the end of its initialization; no pane is open. */
	void InitEngine();

	/** Starts the engine, then opens the level editor in this layout. */
	void StartEditor(FName Layout);

	/** Closes the main frame and takes the engine down, modules last. */
	void ExitEditor();

	/** The module's object, or null. */
	static IModuleInterface* GetModule();

	/** The pane of a number in the layout that is open. */
	static TSharedPtr<SLevelViewport> GetPane(int32 Number);

	/** The client of such a pane. */
	static FViewportClient* GetClient(int32 Number);

	/** The runtime module's display manager. */
	static FTintmillDisplayManager& GetDisplayManager();

	/** The record of such a pane; null when it has none. */
	static const FTintmillDisplayConfiguration* FindRecord(int32 Number);

	/** The name of the look in a record; "" for none. */
	static std::string LookName(const FTintmillDisplayConfiguration* Record);

	FTestFolder Project;
	FCapturedLog Log;
	std::optional<StandIn::FEngineLoop> EngineLoop;
	StandIn::FEngineLoopOptions Options;

private:
	void RemoveDeliberateLeftovers();

	/** Every object of the module that was started and may have left bindings, gone or not. */
	std::vector<const void*> StartedModules;
	FDelegateHandle ModulesChangedHandle;
};
