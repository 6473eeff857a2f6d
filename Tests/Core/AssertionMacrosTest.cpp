// Copyright The Tintmill authors. All rights reserved.

#include "Misc/AssertionMacros.h"

#include "StandIn/FatalHandler.h"
#include "Support/DeathText.h"
#include "Support/LogCapture.h"
#include "gtest/gtest.h"

namespace
{
int32 CountLines(const FLogCapture& Capture, const std::string& Beginning)
{
	int32 Count = 0;
	for (const FLogCapture::FLine& Line : Capture.Lines)
	{
		Count += Line.Text.rfind(Beginning, 0) == 0 ? 1 : 0;
	}
	return Count;
}

bool EnsureHere(bool bValue)
{
	return ensure(bValue);
}

bool EnsureWithMessageHere(int32 Value)
{
	return ensureMsgf(Value == 0, TEXT("Value is %d"), Value);
}

bool EnsureAlwaysHere(bool bValue)
{
	return ensureAlways(bValue);
}

void EnterTwice()
{
	checkNoReentry();
}

void Recurse(int32 Depth)
{
	checkNoRecursion();
	if (Depth > 0)
	{
		Recurse(Depth - 1);
	}
}

void ExitWithMessageSeen(const TCHAR* Message)
{
	std::fprintf(stderr, "handler saw <%s>", ToStd(Message).c_str());
	std::_Exit(7);
}

void ReturnFromHandler(const TCHAR*) {}
}

TEST(AssertionMacrosDeathTest, FailedCheckShowsExpressionFileLineAndAnEmptyText)
{
	const int32 Value = 3;
	EXPECT_DEATH(
		check(Value == 4), "Assertion failed: Value == 4 \\[File:.*AssertionMacrosTest\\.cpp\\] \\[Line: " DEATH_NUMBER "\\] \n\n");
}

TEST(AssertionMacrosDeathTest, FailedCheckfShowsItsTextOnTheNextLine)
{
	EXPECT_DEATH(checkf(1 == 2, TEXT("%s is %i"), TEXT("seven"), 7), "Assertion failed: 1 == 2 .*\\] \nseven is 7\n");
}

TEST(AssertionMacrosDeathTest, ExpressionKeepsParenthesesAndCollapsesBlanks)
{
	const void* Object = nullptr;
	EXPECT_DEATH(check(Object != nullptr && (1 | 2)), "Assertion failed: Object != nullptr && \\(1 \\| 2\\) ");
}

TEST(AssertionMacrosDeathTest, FailedCheckEndsTheProcessWithCodeThree)
{
	EXPECT_EXIT(check(false), testing::ExitedWithCode(3), "Assertion failed: false");
}

TEST(AssertionMacrosDeathTest, FailedVerifyIsFatal)
{
	EXPECT_DEATH(verify(1 == 2), "Assertion failed: 1 == 2");
}

TEST(AssertionMacros, VerifyEvaluatesItsExpressionOnce)
{
	int32 Count = 0;
	verify(++Count == 1);
	EXPECT_EQ(1, Count);
}

TEST(AssertionMacros, SlowCheckIsNotEvaluatedInDevelopment)
{
	int32 Count = 0;
	checkSlow(++Count == 1);
	EXPECT_EQ(0, Count);
}

TEST(AssertionMacrosDeathTest, NoEntryIsFatal)
{
	EXPECT_DEATH(checkNoEntry(), "Assertion failed: Enclosing block should never be called");
}

TEST(AssertionMacrosDeathTest, SecondEntryIsFatalWhereNoReentryIsAllowed)
{
	EXPECT_DEATH(
		{
			EnterTwice();
			EnterTwice();
		},
		"Assertion failed: Enclosing block was called more than once");
}

TEST(AssertionMacrosDeathTest, RecursionIsFatalWhereItIsNotAllowed)
{
	EXPECT_DEATH(Recurse(1), "Assertion failed: Enclosing block was entered recursively");
}

TEST(AssertionMacros, NoRecursionAllowsEnteringAgainAfterLeaving)
{
	Recurse(0);
	Recurse(0);
	SUCCEED();
}

TEST(AssertionMacrosDeathTest, UnimplementedIsFatal)
{
	EXPECT_DEATH(unimplemented(), "Assertion failed: Unimplemented function called");
}

TEST(AssertionMacrosDeathTest, LowLevelFatalErrorShowsFileLineAndText)
{
	EXPECT_DEATH(LowLevelFatalError(TEXT("broken %d"), 5), "Fatal error: \\[File:.*\\] \\[Line: " DEATH_NUMBER "\\] \nbroken 5\n");
}

TEST(AssertionMacros, EnsureYieldsTheConditionItself)
{
	const FLogCapture Capture;
	EXPECT_TRUE(EnsureHere(true));
	EXPECT_FALSE(EnsureHere(false));
}

TEST(AssertionMacros, EnsureReportsOnceForEachCallSite)
{
	StandIn::RearmEnsures();
	const FLogCapture Capture;
	EnsureWithMessageHere(1);
	EnsureWithMessageHere(2);
	EXPECT_EQ(1, CountLines(Capture, "Ensure condition failed: Value == 0 [File:"));
	EXPECT_EQ(1, CountLines(Capture, "Value is 1"));
	EXPECT_EQ(0, CountLines(Capture, "Value is 2"));
}

TEST(AssertionMacros, EnsureReportsAgainAfterRearming)
{
	StandIn::RearmEnsures();
	const FLogCapture Capture;
	EnsureHere(false);
	StandIn::RearmEnsures();
	EnsureHere(false);
	EXPECT_EQ(2, CountLines(Capture, "Ensure condition failed: bValue [File:"));
}

TEST(AssertionMacros, EnsureAlwaysReportsEachTime)
{
	const FLogCapture Capture;
	EnsureAlwaysHere(false);
	EnsureAlwaysHere(false);
	EXPECT_EQ(2, CountLines(Capture, "Ensure condition failed: bValue [File:"));
}

TEST(AssertionMacros, EnsureIsLoggedAsErrorOfTheOutputDevices)
{
	StandIn::RearmEnsures();
	const FLogCapture Capture;
	EnsureHere(false);
	ASSERT_FALSE(Capture.Lines.empty());
	EXPECT_EQ("=== Handled ensure: ===", Capture.Lines[0].Text);
	for (const FLogCapture::FLine& Line : Capture.Lines)
	{
		EXPECT_EQ("LogOutputDevice", Line.Category);
		EXPECT_EQ(ELogVerbosity::Error, Line.Verbosity);
	}
}

TEST(FatalHandlerDeathTest, HandlerReceivesTheWholeMessage)
{
	EXPECT_EXIT(
		{
			StandIn::SetFatalHandler(&ExitWithMessageSeen);
			checkf(false, TEXT("why"));
		},
		testing::ExitedWithCode(7), "handler saw <Assertion failed: false .*\\] \nwhy\n>");
}

TEST(FatalHandlerDeathTest, ProcessEndsEvenIfTheHandlerReturns)
{
	EXPECT_EXIT(
		{
			StandIn::SetFatalHandler(&ReturnFromHandler);
			check(false);
		},
		testing::ExitedWithCode(3), "Assertion failed: false");
}

TEST(FatalHandler, SettingAHandlerYieldsTheOneBefore)
{
	EXPECT_EQ(nullptr, StandIn::SetFatalHandler(&ReturnFromHandler));
	EXPECT_EQ(&ReturnFromHandler, StandIn::SetFatalHandler(nullptr));
}

TEST(FatalHandlerDeathTest, FatalTextIsLoggedAsErrorBeforeTheProcessEnds)
{
	class FEcho : public FOutputDevice
	{
	public:
		using FOutputDevice::Serialize;
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName&) override
		{
			std::fprintf(stderr, "logged %d <%s>", (int)Verbosity, ToStd(V).c_str());
		}
	};
	EXPECT_DEATH(
		{
			FEcho Echo;
			GLog->AddOutputDevice(&Echo);
			check(1 == 2);
		},
		"logged 2 <appError called: Assertion failed: 1 == 2");
}

TEST(FatalHandlerDeathTest, MissingPartsAreRefusedByName)
{
	EXPECT_DEATH(STANDIN_MISSING(TEXT("UFoo::Bar")), "Fatal error: .*\nnot in this stand-in: UFoo::Bar\n");
}
