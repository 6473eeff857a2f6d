// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/AssetCommands.h"

#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/LookBuilder/SLookBuilder.h"
#include "Host/Picture/PngFile.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "Factories/Factory.h"
#include "IAssetTools.h"
#include "StandIn/AssetActivation.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Notices.h"
#include "TintmillObject.h"

namespace TintmillHost
{
namespace
{
/** The look asset of a name. Throws FCommandError, with the looks there are, when there is none. */
FAssetData FindLook(const std::string& Name)
{
	TArray<FAssetData> Looks;
	IAssetRegistry::GetChecked().GetAssetsByClass(FName(TEXT("TintmillObject")), Looks, true);
	std::string Names;
	for (const FAssetData& Look : Looks)
	{
		const std::string Known = ToUtf8(Look.AssetName.ToString());
		if (Known == Name || ToUtf8(Look.PackageName.ToString()) == Name)
		{
			return Look;
		}
		Names += (Names.empty() ? "" : ", ") + Known;
	}
	throw FCommandError("There is no look '" + Name + "'; there are " + (Names.empty() ? "none" : Names) + ".");
}

TSharedRef<SLookBuilder> ShowBuilder(FHostProgram& Program, const std::string& LookName)
{
	const TSharedPtr<SLookBuilder> Builder = Program.GetLookBuilders().Show(LookName);
	if (!Builder.IsValid())
	{
		throw FCommandError("The look builder is not open on '" + LookName + "'; open it with open-look.");
	}
	return Builder.ToSharedRef();
}

/** The factory of looks, as the new-asset menu finds it. */
StandIn::FNewAssetMenuEntry FindNewLookEntry()
{
	for (const StandIn::FNewAssetMenuEntry& Entry : StandIn::ListNewAssetMenu())
	{
		if (Entry.Factory->GetSupportedClass() == UTintmillObject::StaticClass())
		{
			return Entry;
		}
	}
	throw FCommandError("The new-asset menu has no entry for looks; the plug-in's editor module is not loaded.");
}

/** NAME [FOLDER] */
void MakeNewLook(const FArguments& Words, std::ostream& Output)
{
	const StandIn::FNewAssetMenuEntry Entry = FindNewLookEntry();
	Output << "  " << ToUtf8(Entry.Category) << " > " << ToUtf8(Entry.Label) << '\n';
	StandIn::FPendingNewAsset Pending;
	FString Folder;
	const std::string Otherwise = StandIn::FindAssetFolder(TEXT("/Game/Looks"), Folder) ? "/Game/Looks" : "/Game";
	if (!StandIn::BeginNewAsset(Entry.Factory, FromUtf8(Words.size() > 1 ? Words[1] : Otherwise), Pending))
	{
		throw FCommandError("The factory canceled the new look.");
	}
	if (const UObject* const Look = StandIn::CommitNewAsset(Pending, FromUtf8(Words[0])))
	{
		Output << "  " << ToUtf8(Look->GetPathName()) << '\n';
		return;
	}
	const TArray<StandIn::FNotice>& Notices = StandIn::GetNotices();
	throw FCommandError(
		Notices.Num() > 0 ? ToUtf8(Notices.Last().Text) : "There is an asset '" + Words[0] + "' already; choose another name.");
}

/** LOOK FILE [SCALE] [CAPTION...] */
void TakeBuilderShot(FHostProgram& Program, const FArguments& Words, std::ostream& Output)
{
	ShowBuilder(Program, Words[0]);
	const TSharedRef<SWindow> Window = Program.GetLookBuilders().FindWindow(Words[0]).ToSharedRef();
	const double Scale = Words.size() > 2 ? ParseNumber(Words[2], 0.5, 4.0, "a scale") : 1.0;
	Program.TickEditor(0.0);
	const FPicture Picture = Program.GetWindow().TakePictureOf(Window, Scale);

	const std::filesystem::path File = Program.GetOutDir() / PathFromUtf8(Words[1]);
	if (const std::string Problem = WritePng(Picture, File); !Problem.empty())
	{
		throw FCommandError(Problem);
	}
	Output << "  " << File.string() << '\n';
	std::string Caption;
	for (size_t Index = 3; Index < Words.size(); ++Index)
	{
		Caption += (Index > 3 ? " " : "") + Words[Index];
	}
	Program.GetGallery().AddPicture(Caption.empty() ? "The look builder on " + Words[0] : Caption, File);
}

/** The place of the words X Y, in shares of the picture, on the desktop. */
FVector2D FindPlace(FHostProgram& Program, const FArguments& Words)
{
	const TSharedRef<SLookBuilder> Builder = ShowBuilder(Program, Words[0]);
	Program.TickEditor(0.0);
	return Builder->GetPlace(FVector2D(static_cast<float>(ParseNumber(Words[1], 0.0, 1.0, "a share of the width")),
		static_cast<float>(ParseNumber(Words[2], 0.0, 1.0, "a share of the height"))));
}

void AddBuilderCommands(FConsole& Console, FHostProgram& Program)
{
	Console.Add(
		"builders", "list the looks on which the look builder is open", {"builders"}, [&Program](const FArguments&, std::ostream& Output) {
			for (const std::string& Path : Program.GetLookBuilders().GetPaths())
			{
				Output << "  " << Path << ": " << ToUtf8(Program.GetLookBuilders().Show(Path)->GetValues()) << '\n';
			}
		});
	Console.Add("hover-builder LOOK X Y", "point at the look builder's picture, in shares of its area, and read the values there",
		{"hover-builder TealOrange 0.5 0.5"}, [&Program](const FArguments& Words, std::ostream& Output) {
			Program.GetPerson().Hover(FindPlace(Program, Words));
			Output << "  " << ToUtf8(ShowBuilder(Program, Words[0])->GetValues()) << '\n';
		});
	Console.Add("click-builder LOOK X Y", "click into the look builder's picture, which puts its split there",
		{"click-builder TealOrange 0.25 0.5"},
		[&Program](const FArguments& Words, std::ostream&) { Program.GetPerson().Click(FindPlace(Program, Words)); });
	Console.Add("zoom-builder LOOK NOTCHES", "turn the wheel over the middle of the look builder's picture", {"zoom-builder TealOrange 8"},
		[&Program](const FArguments& Words, std::ostream&) {
			Program.GetPerson().Hover(FindPlace(Program, {Words[0], "0.5", "0.5"}));
			Program.GetPerson().TurnWheel(static_cast<float>(ParseNumber(Words[1], -40.0, 40.0, "a number of notches")));
		});
	Console.Add("shot-builder LOOK FILE [SCALE] [CAPTION...]", "save a picture of the look builder's window",
		{"shot-builder TealOrange builder.png 1 Before and after"}, [&Program](const FArguments& Words, std::ostream& Output) {
			Program.GetWindow();
			TakeBuilderShot(Program, Words, Output);
		});
	Console.Add("close-builders", "close all windows of the look builder", {"close-builders"},
		[&Program](const FArguments&, std::ostream&) { Program.GetLookBuilders().CloseAll(); });
}
}

void AddAssetCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "Look assets and the look builder");
	Console.Add("open-look LOOK...", "double-click looks in the content browser, all of them at once",
		{"open-look TealOrange", "open-look TealOrange Monochrome"}, [&Program](const FArguments& Words, std::ostream&) {
			TArray<FAssetData> Looks;
			for (const std::string& Word : Words)
			{
				Looks.Add(FindLook(Word));
			}
			Program.GetWindow();
			StandIn::ActivateAssets(Looks, EAssetTypeActivationMethod::DoubleClicked);
			Program.TickEditor(0.0);
		});
	Console.Add("new-look NAME [FOLDER]",
		"make a look from the new-asset menu, in /Game/Looks where there is such a folder and none is given; the builder opens on it",
		{"new-look Fresh", "new-look Fresh /Game/Looks/Mine"}, [&Program](const FArguments& Words, std::ostream& Output) {
			Program.GetWindow();
			MakeNewLook(Words, Output);
			Program.TickEditor(0.0);
		});
	Console.Add("describe-look LOOK", "print the type and the description that the tool tip of a look shows", {"describe-look TealOrange"},
		[](const FArguments& Words, std::ostream& Output) {
			const FAssetData Look = FindLook(Words[0]);
			const TSharedPtr<IAssetTypeActions> Actions =
				FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(UTintmillObject::StaticClass()).Pin();
			if (Actions.IsValid())
			{
				Output << "  " << ToUtf8(Actions->GetName().ToString()) << ": " << ToUtf8(Actions->GetAssetDescription(Look).ToString())
					   << '\n';
			}
		});
	AddBuilderCommands(Console, Program);
}
}
