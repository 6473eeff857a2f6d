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
FEditorWindow::FEditorWindow(const FIntPoint& InSize, const std::string& ProjectName, FBrushPictures MoreBrushPictures)
	: Painter(MakeDesktopPainter())
	, Size(InSize)
{
	if (Painter)
	{
		Painter->SetPictures(
			[this](const ISlateViewport& Viewport, const FIntPoint& DeviceSize) { return PanePictures.Find(Viewport, DeviceSize); },
			[this, MoreBrushPictures](const FSlateBrush& Brush, const FIntPoint& DeviceSize) {
				const FPictureView Thumbnail = Thumbnails.Find(Brush);
				return Thumbnail.Pixels ? Thumbnail : MoreBrushPictures(Brush, DeviceSize);
			});
	}
	const TSharedPtr<ILevelEditor> LevelEditor =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor();
	// clang-format off
	Window = SNew(SWindow)
		.AutoCenter(EAutoCenter::None)
		.ClientSize(FVector2D(static_cast<float>(Size.X), static_cast<float>(Size.Y)))
		[
			SNew(SEditorFrame)
			.ProjectName(FText::FromString(FromUtf8(ProjectName)))
			.LevelEditor(LevelEditor)
		];
	// clang-format on
	FSlateApplication::Get().AddWindow(Window.ToSharedRef());
}

FEditorWindow::~FEditorWindow()
{
	Window->SetContent(SNullWidget::NullWidget);
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
	}
}

void FEditorWindow::Resize(const FIntPoint& NewSize)
{
	Size = NewSize;
	Window->Resize(FVector2D(static_cast<float>(Size.X), static_cast<float>(Size.Y)));
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

FPicture FEditorWindow::Take(FWindowShot& Shot, double Scale)
{
	Shot.Scale = Scale;
	Shot.Pointer = FSlateApplication::Get().GetCursorPos();
	FPicture Picture = Painter ? Painter->Paint(Shot) : FPicture();
	PanePictures.Forget();
	return Picture;
}
}
