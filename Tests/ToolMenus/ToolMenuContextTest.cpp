// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuContext.h"
#include "ToolMenuFixture.h"
#include "ToolMenuOtherTestContext.h"
#include "ToolMenuTestContext.h"

using FToolMenuContextTest = FToolMenuFixture;

TEST_F(FToolMenuContextTest, FindContextGivesTheFirstObjectOfTheClass)
{
	UToolMenuTestContext* First = NewObject<UToolMenuTestContext>();
	FToolMenuContext Context(NewObject<UToolMenuOtherTestContext>());
	Context.AddObject(First);
	Context.AddObject(NewObject<UToolMenuTestContext>());
	EXPECT_EQ(Context.FindContext<UToolMenuTestContext>(), First);
}

TEST_F(FToolMenuContextTest, FindContextGivesNullForAnotherClass)
{
	EXPECT_EQ(FToolMenuContext(NewObject<UToolMenuTestContext>()).FindContext<UToolMenuOtherTestContext>(), nullptr);
}

TEST_F(FToolMenuContextTest, FindByClassFindsChildren)
{
	UObject* Object = NewObject<UToolMenuTestContext>();
	EXPECT_EQ(FToolMenuContext(Object).FindByClass(UObject::StaticClass()), Object);
}

TEST_F(FToolMenuContextTest, IgnoresANullObject)
{
	UObject* Nothing = nullptr;
	EXPECT_EQ(FToolMenuContext(Nothing).FindByClass(UObject::StaticClass()), nullptr);
}
