// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/EditorWindow.h"

#include "Host/Program/Strings.h"
#include "Host/Ui/SEditorFrame.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "Widgets/SNullWidget.h"

namespace TintmillHost
{
FEditorWindow::FEditorWindow(const FIntPoint& InSize, const FFrameContent& Content, FBrushPictures MoreBrushPictures)
	: Painter(MakeDesktopPainter())
	, Size(InSize)
{
	if (Painter)
	{
		Painter->SetPictures(
			[this](const ISlateViewport& Viewport, const FIntPoint& DeviceSize) { return PanePictures.Find(Viewport, DeviceSize); },
			[this, MoreBrushPictures](const FSlateBrush& Brush, const FIntPoint& DeviceSize) {
				const FPictureView Thumbnail = Thumbnails.Find(Brush, DeviceSize);
				return Thumbnail.Pixels ? Thumbnail : MoreBrushPictures(Brush, DeviceSize);
			});
	}
	const TSharedPtr<ILevelEditor> LevelEditor =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor();
	// clang-format off
	Window = SNew(SWindow)
		.AutoCenter(EAutoCenter::None)
		.Title(FText::FromString(FromUtf8(Content.ProjectName + " - Tintmill Editor")))
		.CreateTitleBar(false)
		.ClientSize(FVector2D(static_cast<float>(Size.X), static_cast<float>(Size.Y)))
		[
			SAssignNew(Frame, SEditorFrame)
			.Content(Content)
			.LevelEditor(LevelEditor)
		];
	// clang-format on
	Window->GetOnWindowActivatedEvent().AddRaw(this, &FEditorWindow::StayBehind);
	FSlateApplication::Get().AddWindow(Window.ToSharedRef());
	Resize(Size);
}

FEditorWindow::~FEditorWindow()
{
	Window->GetOnWindowActivatedEvent().RemoveAll(this);
	Window->SetContent(SNullWidget::NullWidget);
	Frame.Reset();
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
	}
}

void FEditorWindow::Resize(const FIntPoint& NewSize)
{
	Size = NewSize;
	const FVector2D Area(static_cast<float>(Size.X), static_cast<float>(Size.Y));
	Window->Resize(Area);
	FSlateApplication::Get().SetWorkArea(FSlateRect::FromPointAndExtent(FVector2D(0.0f, 0.0f), Area));
}

void FEditorWindow::StayBehind()
{
	const TArray<TSharedRef<SWindow>> Others = FSlateApplication::Get().GetInteractiveTopLevelWindows();
	for (const TSharedRef<SWindow>& Other : Others)
	{
		if (Other != Window)
		{
			Other->BringToFront();
		}
	}
}

FPicture FEditorWindow::TakePicture(double Scale)
{
	FWindowShot Shot;
	FSlateApplication::Get().GetAllVisibleWindowsOrdered(Shot.Windows);
	Shot.Size = Size;
	return Take(Shot, Scale);
}

FPicture FEditorWindow::TakePictureOf(const TSharedRef<SWindow>& Shown, double Scale)
{
	FWindowShot Shot;
	Shot.Windows.Add(Shown);
	Shot.Origin = Shown->GetPositionInScreen().IntPoint();
	Shot.Size = Shown->GetSizeInScreen().IntPoint();
	return Take(Shot, Scale);
}

TArray<FIntRect> FEditorWindow::UpdatePicture(FPicture& InOutPicture)
{
	FWindowShot Shot;
	FSlateApplication::Get().GetAllVisibleWindowsOrdered(Shot.Windows);
	Shot.Size = Size;
	const TArray<FIntRect> Changes = Painter ? Painter->Update(Shot, InOutPicture) : TArray<FIntRect>();
	PanePictures.Forget();
	return Changes;
}

FPicture FEditorWindow::Take(FWindowShot& Shot, double Scale)
{
	Shot.Scale = Scale;
	Shot.Pointer = FSlateApplication::Get().GetCursorPos();
	FPicture Picture = Painter ? Painter->Paint(Shot) : FPicture();
	PanePictures.Forget();
	return Picture;
}
}
