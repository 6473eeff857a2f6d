// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

// Texts for people: a string with, for localizable ones, the namespace and key it is translated under. Nothing is translated
// here, and two texts that share namespace and key keep their own words. Left out: cultures other than English, dates, string
// tables, history, and argument modifiers in patterns ("{0}|plural(…)"), which are refused.

class FFormatArgumentValue;
class FName;
class FText;

/** How closely two texts are compared. */
namespace ETextComparisonLevel
{
enum Type
{
	Default,
	Primary,
	Secondary,
	Tertiary,
	Quaternary,
	Quinary
};
}

/** How FText::AsNumber writes a number. */
struct FNumberFormattingOptions
{
	bool UseGrouping = true;
	int32 MinimumIntegralDigits = 1;
	int32 MaximumIntegralDigits = 308 + 15 + 1;
	int32 MinimumFractionalDigits = 0;
	int32 MaximumFractionalDigits = 3;
};

typedef TMap<FString, FFormatArgumentValue> FFormatNamedArguments;
typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;

/** A pattern with placeholders: "{0}" and "{Name}"; a back-tick before a brace or a back-tick takes away its meaning. */
class FTextFormat
{
public:
	/** The pattern that the text's words spell. */
	CORE_API FTextFormat(const FText& InText);

	/** The pattern. */
	const FString& GetSourceString() const { return Pattern; }

private:
	FString Pattern;
};

/** A text for people. Copies are cheap and share their words. There is no ==: compare with EqualTo or by ToString. */
class CORE_API FText
{
public:
	/** An empty text. */
	FText();

	/** The one empty text. */
	static const FText& GetEmpty();

	/** A text of words that are not translated. */
	static FText FromString(const FString& String);
	/** A text of words that are not translated. */
	static FText FromString(FString&& String);

	/** The name's words. */
	static FText FromName(const FName& Val);

	/** Words that are the same in every culture. */
	static FText AsCultureInvariant(const FString& String);
	/** Words that are the same in every culture. */
	static FText AsCultureInvariant(FString&& String);
	/** The text's words, the same in every culture. */
	static FText AsCultureInvariant(FText Text);

	/** A number with grouping commas and at most three fractional digits, unless the options say otherwise. */
	static FText AsNumber(float Val, const FNumberFormattingOptions* const Options = nullptr);
	/** A number in the same way. */
	static FText AsNumber(double Val, const FNumberFormattingOptions* const Options = nullptr);
	/** A number in the same way. */
	static FText AsNumber(int32 Val, const FNumberFormattingOptions* const Options = nullptr);
	/** A number in the same way. */
	static FText AsNumber(uint32 Val, const FNumberFormattingOptions* const Options = nullptr);
	/** A number in the same way. */
	static FText AsNumber(int64 Val, const FNumberFormattingOptions* const Options = nullptr);
	/** A number in the same way. */
	static FText AsNumber(uint64 Val, const FNumberFormattingOptions* const Options = nullptr);

	/** A share of one as a percentage: 0.5 is "50%". */
	static FText AsPercent(float Val, const FNumberFormattingOptions* const Options = nullptr);

	/** A localizable text; what LOCTEXT and NSLOCTEXT make. */
	static FText MakeLocalizable(const TCHAR* InSource, const TCHAR* InNamespace, const TCHAR* InKey);

	/** Fills the pattern's placeholders; one without an argument stays as typed. */
	static FText Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments);
	/** Fills the placeholders {0}, {1} and so on; one without an argument stays as typed. */
	static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments);
	/** Fills the placeholders {0}, {1} and so on; one without an argument stays as typed. */
	template <typename... ArgTypes>
	static FText Format(FTextFormat Fmt, const FFormatArgumentValue& First, ArgTypes... Args);
	/** Fills the placeholders {0}, {1} and so on; one without an argument stays as typed. */
	template <typename... ArgTypes>
	static FText FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args);

	/** The texts with the delimiter between them. */
	static FText Join(const FText& Delimiter, const TArray<FText>& Args);

	/** The words as shown. */
	const FString& ToString() const;

	/** The words in the source language. */
	FString BuildSourceString() const;

	/** Whether there are no words. */
	bool IsEmpty() const;
	/** Whether there is nothing but white space. */
	bool IsEmptyOrWhitespace() const;
	/** Whether the words are one number. */
	bool IsNumeric() const;
	/** Whether the text was put together while running. */
	bool IsTransient() const;
	/** Whether the words are the same in every culture. */
	bool IsCultureInvariant() const;
	/** Always false: there are no string tables. */
	bool IsFromStringTable() const { return false; }

	/** Compares the words; the default level tells upper from lower case. */
	bool EqualTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	/** Compares the words without regard to case. */
	bool EqualToCaseIgnored(const FText& Other) const;
	/** Orders by the words; negative, zero or positive. */
	int32 CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	/** Orders by the words without regard to case; negative, zero or positive. */
	int32 CompareToCaseIgnored(const FText& Other) const;

	/** Says whether both are the same text: they share their words' storage, or namespace, key and words. */
	bool IdenticalTo(const FText& Other) const;

	/** The words in upper case. */
	FText ToUpper() const;
	/** The words in lower case. */
	FText ToLower() const;

	/** The words without white space at the start and the end. */
	static FText TrimPrecedingAndTrailing(const FText& InText);

private:
	friend class FTextInspector;
	struct FTextData;

	explicit FText(const TSharedRef<FTextData, ESPMode::ThreadSafe>& InData);
	static FText Make(FString&& String, uint32 Flags);

	TSharedRef<FTextData, ESPMode::ThreadSafe> Data;
};

/** A value for a placeholder. */
class CORE_API FFormatArgumentValue
{
public:
	/** An empty text. */
	FFormatArgumentValue() {}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const int32 Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const uint32 Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const int64 Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const uint64 Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const float Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A number as FText::AsNumber writes it. */
	FFormatArgumentValue(const double Value)
		: Text(FText::AsNumber(Value))
	{}
	/** A text as it is. */
	FFormatArgumentValue(const FText& Value)
		: Text(Value)
	{}

	/** The value as it is put into the pattern. */
	const FString& ToString() const { return Text.ToString(); }

private:
	FText Text;
};

template <typename... ArgTypes>
FText FText::Format(FTextFormat Fmt, const FFormatArgumentValue& First, ArgTypes... Args)
{
	return FormatOrdered(Fmt, First, Args...);
}

template <typename... ArgTypes>
FText FText::FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args)
{
	const FFormatArgumentValue Values[] = {FFormatArgumentValue(Args)...};
	FFormatOrderedArguments Arguments;
	for (const FFormatArgumentValue& Value : Values)
	{
		Arguments.Add(Value);
	}
	return Format(Fmt, Arguments);
}

/** Looks inside a text. */
class CORE_API FTextInspector
{
public:
	/** Says whether the text is one that translators see. */
	static bool ShouldGatherForLocalization(const FText& Text);

	/** Namespace; unset for texts that are not localizable. */
	static TOptional<FString> GetNamespace(const FText& Text);
	/** Key; unset for texts that are not localizable. */
	static TOptional<FString> GetKey(const FText& Text);

	/** The words in the source language. */
	static const FString* GetSourceString(const FText& Text);

	/** The words as shown. */
	static const FString& GetDisplayString(const FText& Text);
};
