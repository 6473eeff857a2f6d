// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/Fingerprint.h"

namespace TintmillHost
{
namespace
{
void AddVector(FFingerprint& Fingerprint, const FVector2D& Vector)
{
	Fingerprint.Add(Vector.X).Add(Vector.Y);
}

void AddColor(FFingerprint& Fingerprint, const FLinearColor& Color)
{
	Fingerprint.Add(Color.R).Add(Color.G).Add(Color.B).Add(Color.A);
}

void AddText(FFingerprint& Fingerprint, const FString& Text)
{
	Fingerprint.Add(Text.Len()).AddBytes(*Text, static_cast<size_t>(Text.Len()) * sizeof(TCHAR));
}

void AddBrush(FFingerprint& Fingerprint, const FSlateBrush& Brush)
{
	Fingerprint.Add(Brush.GetResourceName().GetComparisonIndex()).Add(Brush.GetResourceName().GetNumber());
	Fingerprint.Add(Brush.GetResourceObject());
	Fingerprint.Add(Brush.GetDrawType()).Add(Brush.GetTiling()).Add(Brush.Mirroring.GetValue());
	const FMargin& Margin = Brush.GetMargin();
	Fingerprint.Add(Margin.Left).Add(Margin.Top).Add(Margin.Right).Add(Margin.Bottom);
}
}

FFingerprint& FFingerprint::AddBytes(const void* Bytes, size_t Count)
{
	const unsigned char* Place = static_cast<const unsigned char*>(Bytes);
	for (; Count >= sizeof(std::uint64_t); Count -= sizeof(std::uint64_t), Place += sizeof(std::uint64_t))
	{
		std::uint64_t Word = 0;
		std::memcpy(&Word, Place, sizeof(Word));
		Add(Word);
	}
	std::uint64_t Rest = 0;
	std::memcpy(&Rest, Place, Count);
	return Add(Rest);
}

FFingerprint FingerprintElement(const FSlateDrawElement& Element)
{
	FFingerprint Fingerprint;
	Fingerprint.Add(Element.GetElementType()).Add(Element.IsDisabled());
	AddVector(Fingerprint, Element.GetPaintGeometry().DrawPosition);
	AddVector(Fingerprint, Element.GetPaintGeometry().GetLocalSize());
	Fingerprint.Add(Element.GetPaintGeometry().DrawScale);
	AddColor(Fingerprint, Element.GetTint());
	Fingerprint.Add(Element.GetClipRect().IsSet());
	if (Element.GetClipRect().IsSet())
	{
		const FSlateRect& Clip = Element.GetClipRect().GetValue();
		Fingerprint.Add(Clip.Left).Add(Clip.Top).Add(Clip.Right).Add(Clip.Bottom);
	}
	switch (Element.GetElementType())
	{
	case EElementType::ET_Box:
		AddBrush(Fingerprint, Element.GetBrush());
		break;
	case EElementType::ET_Text:
		AddText(Fingerprint, Element.GetText());
		AddText(Fingerprint, Element.GetFontInfo().GetFamilyName());
		Fingerprint.Add(Element.GetFontInfo().TypefaceFontName.GetComparisonIndex()).Add(Element.GetFontInfo().Size);
		break;
	case EElementType::ET_Line:
		Fingerprint.Add(Element.GetThickness());
		for (const FVector2D& Point : Element.GetPoints())
		{
			AddVector(Fingerprint, Point);
		}
		break;
	case EElementType::ET_Viewport:
		break;
	}
	return Fingerprint;
}
}
