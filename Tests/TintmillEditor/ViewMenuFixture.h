// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/AssetPickerRows.h"
#include "Support/MenuUser.h"
#include "Support/Printers.h"
#include "TintmillEditor/ModuleFixture.h"
#include "ToolMenus.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

class FViewport;
class UTintmillObject;

/** An editor with its panes in a window, and a person who uses their toolbars. */
class FViewMenuFixture : public FModuleFixture
{
protected:
	virtual ~FViewMenuFixture() override;

	/** Starts the editor in a layout and shows its panes. */
	void ShowEditor(FName Layout = FName(TEXT("FourPanes2x2")));

	/** Makes a pane the one that is worked in. */
	static void Activate(int32 Number);

	/** Opens the View menu of a pane's toolbar with a click on its button. */
	void OpenViewMenu(int32 Number = 0);

	/** Opens that menu and points at "Tintmill". */
	void OpenPanel(int32 Number = 0);

	/** Opens that and points at the row of the look. */
	void OpenPicker(int32 Number = 0);

	/** Points at the panel's row of the look, which opens the picker; the panel is the last menu but the picker. */
	void HoverLookRow();

	/** Closes all menus. */
	static void CloseMenus();

	/** The panel's row of the look, whatever it reads. */
	StandIn::FMenuRow FindLookRow() const;

	/** What the picker in the last opened menu shows. */
	StandIn::FAssetPickerState GetPicker() const;

	/** The names that this picker lists, separated by "|". */
	std::string GetPickerNames() const;

	/** Clicks a listed look. */
	void ClickLook(const TCHAR* Name);

	/** The last opened menu. */
	TSharedRef<SWidget> GetLastMenu() const;

	/** The picture's viewport of a pane. */
	static FViewport* GetViewport(int32 Number);

	/** A look of the project, loaded. */
	static UTintmillObject* LoadLook(const std::string& Name);

	/** Gives a pane a record. */
	static void SetRecord(int32 Number, bool bEnable, float Intensity, UTintmillObject* Look);

	/** A text as "namespace, key, words". */
	static std::string Describe(const FText& Text);

	/** First widget of a type at or below another; null if there is none. */
	static TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const TCHAR* Type);

	std::unique_ptr<FMenuUser> User;
};
