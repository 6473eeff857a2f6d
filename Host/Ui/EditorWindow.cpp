// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/EditorWindow.h"

#include "Host/Painter/WindowPainter.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/SEditorFrame.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "Widgets/SNullWidget.h"

namespace TintmillHost
{
FEditorWindow::FEditorWindow(const FIntPoint& InSize, const std::string& ProjectName)
	: Layouts(std::make_shared<FTextLayouts>())
	, Measuring(Layouts)
	, Painter(Layouts)
	, Size(InSize)
{
	Painter.SetViewportPictures(
		[this](const ISlateViewport& Viewport, const FIntPoint& DeviceSize) { return PanePictures.Find(Viewport, DeviceSize); });
	Painter.SetBrushPictures([this](const FSlateBrush& Brush, const FIntPoint&) { return Thumbnails.Find(Brush); });
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
	FSlateApplication& Application = FSlateApplication::Get();
	FWindowShot Shot;
	Application.GetAllVisibleWindowsOrdered(Shot.Windows);
	Shot.Size = Size;
	Shot.Scale = Scale;
	Shot.Pointer = Application.GetCursorPos();
	FPicture Picture = PaintWindows(Painter, Shot);
	PanePictures.Forget();
	return Picture;
}
}
