// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "TintmillDisplayConfiguration.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FViewport;
struct FAssetData;
struct FToolMenuSection;
class UToolMenu;

/** Reports every change that the user makes, with the widget's whole configuration. */
DECLARE_DELEGATE_OneParam(FOnDisplayConfigurationChanged, const FTintmillDisplayConfiguration&);

/** The panel of a viewport's View menu that shows a copy of one display configuration and edits it. */
class STintmillWidget : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(STintmillWidget)
		: _Viewport(nullptr)
	{}
		/** The viewport whose configuration is shown; must not be null. */
		SLATE_ARGUMENT(FViewport*, Viewport)

		/** The configuration to show and edit. */
		SLATE_ARGUMENT(FTintmillDisplayConfiguration, DisplayConfiguration)

		/** Called after every change that the user makes. */
		SLATE_EVENT(FOnDisplayConfigurationChanged, OnDisplayConfigurationChanged)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	bool IsDisplayEnabled() const;
	bool CanToggleDisplay() const;
	void ToggleDisplay();

	FText GetAssetSelectionLabel() const;
	void FillAssetPickerMenu(UToolMenu* Menu);
	void OnAssetSelected(const FAssetData& AssetData);

	UToolMenu* FindOrRegisterMenu() const;
	void AddEnableDisplayEntry(FToolMenuSection& Section);
	void AddAssetSelectionEntry(FToolMenuSection& Section);

	FViewport* Viewport = nullptr;
	TSharedPtr<SWidget> AssetPickerWidget;
	FTintmillDisplayConfiguration DisplayConfiguration;
	FOnDisplayConfigurationChanged OnDisplayConfigurationChanged;
};
