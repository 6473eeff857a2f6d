// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Program/HostState.h"

#include <map>
#include <optional>
#include <string>

namespace StandIn
{
struct FEngineLoopOptions;
}

// What a person has arranged in the editor and finds again when the program starts the next time: the level editor's tabs with
// their layouts, handles and filling panes, the pane that is worked in, the map, and the window's areas.

namespace TintmillHost
{
class SEditorFrame;

/** Brings back where the last session ended, and keeps where this one goes. */
class FEditorState
{
public:
	/** Reads the first tab's layout and the map into the options of the start; what is not there any more is left as it is. */
	void Restore(StandIn::FEngineLoopOptions& InOutOptions);

	/** Brings back the rest of the level editor, which has to be open. */
	void RestoreLevelEditor();

	/** Brings back the areas of the window, which has to be open. */
	static void RestoreFrame(SEditorFrame& Frame);

	/** Keeps what has changed; to be called every frame, with null as long as there is no window. */
	void Keep(const SEditorFrame* Frame);

private:
	struct FValue
	{
		std::string Text;
		std::string Default;

		bool operator==(const FValue& Other) const = default;
	};

	using FValues = std::map<std::string, FValue>;

	void AddTabs(FValues& OutValues);
	static void AddFrame(const SEditorFrame& Frame, FValues& OutValues);

	/** The handles of a tab as text, "" while nobody has moved them. */
	std::string DescribeHandles(int Tab, const std::string& Layout);

	/** The pane that is active when nothing else was asked for. */
	std::string FirstActive;

	/** The handles of each layout as it is when it is opened. */
	std::map<std::string, std::string> UntouchedHandles;

	/** As of the last frame; while they change from frame to frame something is dragged. */
	FValues Last;
	std::optional<FStateDrag> Drag;
};
}
