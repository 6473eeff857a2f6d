// Copyright The Tintmill authors. All rights reserved.

#include "Internationalization/Text.h"

#include "Misc/CString.h"
#include "Misc/Char.h"
#include "StandIn/FatalHandler.h"
#include "UObject/NameTypes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace
{
constexpr uint32 TransientFlag = 1 << 0;
constexpr uint32 CultureInvariantFlag = 1 << 1;

FString Widened(const std::string& Text)
{
	return FString(Text.c_str());
}

/** The digits with a comma before every group of three. */
std::string Grouped(const std::string& Digits)
{
	std::string Result;
	for (size_t Index = 0; Index < Digits.size(); ++Index)
	{
		if (Index > 0 && (Digits.size() - Index) % 3 == 0)
		{
			Result += ',';
		}
		Result += Digits[Index];
	}
	return Result;
}

std::string WriteNumber(bool bNegative, std::string Integral, std::string Fraction, const FNumberFormattingOptions& Options)
{
	while (static_cast<int32>(Integral.size()) < Options.MinimumIntegralDigits)
	{
		Integral.insert(Integral.begin(), '0');
	}
	while (static_cast<int32>(Fraction.size()) > Options.MinimumFractionalDigits && Fraction.back() == '0')
	{
		Fraction.pop_back();
	}
	while (static_cast<int32>(Fraction.size()) < Options.MinimumFractionalDigits)
	{
		Fraction += '0';
	}
	const bool bZero = Integral.find_first_not_of('0') == std::string::npos && Fraction.find_first_not_of('0') == std::string::npos;
	return std::string(bNegative && !bZero ? "-" : "") + (Options.UseGrouping ? Grouped(Integral) : Integral)
		+ (Fraction.empty() ? "" : "." + Fraction);
}

FString WriteInteger(bool bNegative, uint64 Magnitude, const FNumberFormattingOptions* Options)
{
	return Widened(WriteNumber(bNegative, std::to_string(Magnitude), "", Options ? *Options : FNumberFormattingOptions()));
}

FString WriteReal(double Value, const FNumberFormattingOptions* InOptions)
{
	const FNumberFormattingOptions Options = InOptions ? *InOptions : FNumberFormattingOptions();
	if (!std::isfinite(Value))
	{
		return std::isnan(Value) ? TEXT("NaN") : Value < 0.0 ? TEXT("-\u221E") : TEXT("\u221E");
	}
	char Buffer[512];
	const int32 Precision = std::min(Options.MaximumFractionalDigits, 100);
	const std::to_chars_result End = std::to_chars(Buffer, Buffer + sizeof(Buffer), std::fabs(Value), std::chars_format::fixed, Precision);
	const std::string Digits(Buffer, End.ptr);
	const size_t Point = Digits.find('.');
	return Widened(WriteNumber(
		std::signbit(Value), Digits.substr(0, Point), Point == std::string::npos ? std::string() : Digits.substr(Point + 1), Options));
}

/** The pattern with every placeholder replaced by what Find gives for its name; one that Find does not know stays. */
template <typename FindType>
FString FillPattern(const FString& Pattern, const FindType& Find)
{
	FString Result;
	const int32 Length = Pattern.Len();
	for (int32 Index = 0; Index < Length; ++Index)
	{
		const TCHAR Character = Pattern[Index];
		const TCHAR Next = Index + 1 < Length ? Pattern[Index + 1] : TCHAR(0);
		if (Character == TEXT('`') && (Next == TEXT('{') || Next == TEXT('}') || Next == TEXT('`') || Next == TEXT('|')))
		{
			Result += Next;
			++Index;
			continue;
		}
		int32 End = INDEX_NONE;
		if (Character == TEXT('{'))
		{
			for (int32 Search = Index + 1; Search < Length && End == INDEX_NONE; ++Search)
			{
				End = Pattern[Search] == TEXT('}') ? Search : INDEX_NONE;
			}
		}
		const FString* const Value = End != INDEX_NONE ? Find(Pattern.Mid(Index + 1, End - Index - 1)) : nullptr;
		if (!Value)
		{
			Result += Character;
			continue;
		}
		if (End + 1 < Length && Pattern[End + 1] == TEXT('|'))
		{
			STANDIN_MISSING(TEXT("FText::Format argument modifiers"));
		}
		Result += *Value;
		Index = End;
	}
	return Result;
}
}

struct FText::FTextData
{
	FString String;
	FString Namespace;
	FString Key;
	bool bLocalizable = false;
	uint32 Flags = 0;
};

FTextFormat::FTextFormat(const FText& InText)
	: Pattern(InText.ToString())
{}

FText::FText()
	: Data(GetEmpty().Data)
{}

FText::FText(const TSharedRef<FTextData, ESPMode::ThreadSafe>& InData)
	: Data(InData)
{}

const FText& FText::GetEmpty()
{
	static const FText Empty(MakeShared<FTextData, ESPMode::ThreadSafe>());
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return FromString(FString(String));
}

FText FText::FromString(FString&& String)
{
	return Make(MoveTemp(String), 0);
}

FText FText::FromName(const FName& Val)
{
	return FromString(Val.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return AsCultureInvariant(FString(String));
}

FText FText::AsCultureInvariant(FString&& String)
{
	return Make(MoveTemp(String), CultureInvariantFlag);
}

FText FText::AsCultureInvariant(FText Text)
{
	const TSharedRef<FTextData, ESPMode::ThreadSafe> NewData = MakeShared<FTextData, ESPMode::ThreadSafe>(*Text.Data);
	NewData->Flags |= CultureInvariantFlag;
	return FText(NewData);
}

FText FText::AsNumber(float Val, const FNumberFormattingOptions* const Options)
{
	return Make(WriteReal(Val, Options), TransientFlag);
}

FText FText::AsNumber(double Val, const FNumberFormattingOptions* const Options)
{
	return Make(WriteReal(Val, Options), TransientFlag);
}

FText FText::AsNumber(int32 Val, const FNumberFormattingOptions* const Options)
{
	return AsNumber(static_cast<int64>(Val), Options);
}

FText FText::AsNumber(uint32 Val, const FNumberFormattingOptions* const Options)
{
	return AsNumber(static_cast<uint64>(Val), Options);
}

FText FText::AsNumber(int64 Val, const FNumberFormattingOptions* const Options)
{
	return Make(WriteInteger(Val < 0, Val < 0 ? 0u - static_cast<uint64>(Val) : static_cast<uint64>(Val), Options), TransientFlag);
}

FText FText::AsNumber(uint64 Val, const FNumberFormattingOptions* const Options)
{
	return Make(WriteInteger(false, Val, Options), TransientFlag);
}

FText FText::AsPercent(float Val, const FNumberFormattingOptions* const Options)
{
	FNumberFormattingOptions Percent;
	Percent.MaximumFractionalDigits = 0;
	return Make(WriteReal(100.0 * static_cast<double>(Val), Options ? Options : &Percent) + TEXT("%"), TransientFlag);
}

FText FText::MakeLocalizable(const TCHAR* InSource, const TCHAR* InNamespace, const TCHAR* InKey)
{
	const TSharedRef<FTextData, ESPMode::ThreadSafe> NewData = MakeShared<FTextData, ESPMode::ThreadSafe>();
	NewData->String = InSource;
	NewData->Namespace = InNamespace;
	NewData->Key = InKey;
	NewData->bLocalizable = true;
	return FText(NewData);
}

FText FText::Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments)
{
	return Make(FillPattern(Fmt.GetSourceString(),
					[&InArguments](const FString& Name) -> const FString* {
						const FFormatArgumentValue* const Value = InArguments.Find(Name);
						return Value ? &Value->ToString() : nullptr;
					}),
		TransientFlag);
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments)
{
	return Make(FillPattern(Fmt.GetSourceString(),
					[&InArguments](const FString& Name) -> const FString* {
						bool bNumber = !Name.IsEmpty();
						for (int32 Index = 0; Index < Name.Len(); ++Index)
						{
							bNumber = bNumber && FChar::IsDigit(Name[Index]);
						}
						const int32 Position = bNumber ? FCString::Atoi(*Name) : INDEX_NONE;
						return InArguments.IsValidIndex(Position) ? &InArguments[Position].ToString() : nullptr;
					}),
		TransientFlag);
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Args)
{
	FString Result;
	for (int32 Index = 0; Index < Args.Num(); ++Index)
	{
		Result += Index > 0 ? Delimiter.ToString() : FString();
		Result += Args[Index].ToString();
	}
	return Make(MoveTemp(Result), TransientFlag);
}

const FString& FText::ToString() const
{
	return Data->String;
}

FString FText::BuildSourceString() const
{
	return Data->String;
}

bool FText::IsEmpty() const
{
	return Data->String.IsEmpty();
}

bool FText::IsEmptyOrWhitespace() const
{
	for (int32 Index = 0; Index < Data->String.Len(); ++Index)
	{
		if (!FChar::IsWhitespace(Data->String[Index]))
		{
			return false;
		}
	}
	return true;
}

bool FText::IsNumeric() const
{
	return Data->String.IsNumeric();
}

bool FText::IsTransient() const
{
	return (Data->Flags & TransientFlag) != 0;
}

bool FText::IsCultureInvariant() const
{
	return (Data->Flags & CultureInvariantFlag) != 0;
}

bool FText::EqualTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	return CompareTo(Other, ComparisonLevel) == 0;
}

bool FText::EqualToCaseIgnored(const FText& Other) const
{
	return CompareToCaseIgnored(Other) == 0;
}

int32 FText::CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	const bool bIgnoreCase = ComparisonLevel == ETextComparisonLevel::Primary || ComparisonLevel == ETextComparisonLevel::Secondary;
	return bIgnoreCase ? CompareToCaseIgnored(Other) : FCString::Strcmp(*Data->String, *Other.Data->String);
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return FCString::Stricmp(*Data->String, *Other.Data->String);
}

bool FText::IdenticalTo(const FText& Other) const
{
	if (&Data.Get() == &Other.Data.Get())
	{
		return true;
	}
	return Data->bLocalizable && Other.Data->bLocalizable && Data->Namespace.Equals(Other.Data->Namespace)
		&& Data->Key.Equals(Other.Data->Key) && Data->String.Equals(Other.Data->String);
}

FText FText::ToUpper() const
{
	return Make(Data->String.ToUpper(), TransientFlag);
}

FText FText::ToLower() const
{
	return Make(Data->String.ToLower(), TransientFlag);
}

FText FText::TrimPrecedingAndTrailing(const FText& InText)
{
	return Make(InText.ToString().TrimStartAndEnd(), TransientFlag);
}

FText FText::Make(FString&& String, uint32 Flags)
{
	const TSharedRef<FTextData, ESPMode::ThreadSafe> NewData = MakeShared<FTextData, ESPMode::ThreadSafe>();
	NewData->String = MoveTemp(String);
	NewData->Flags = Flags;
	return FText(NewData);
}

bool FTextInspector::ShouldGatherForLocalization(const FText& Text)
{
	return Text.Data->bLocalizable && !Text.IsEmpty();
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data->bLocalizable ? TOptional<FString>(Text.Data->Namespace) : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data->bLocalizable ? TOptional<FString>(Text.Data->Key) : TOptional<FString>();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return &Text.Data->String;
}

const FString& FTextInspector::GetDisplayString(const FText& Text)
{
	return Text.Data->String;
}
