// Copyright The Tintmill authors. All rights reserved.

#include "PluginDescriptor.h"

#include "Support/TestFolder.h"
#include "gtest/gtest.h"

namespace
{
/** What is wrong with a descriptor's text, or "". */
std::string Complain(const std::string& Text)
{
	FPluginDescriptor Descriptor;
	FText Reason;
	return Descriptor.Read(UTF8_TO_TCHAR(Text.c_str()), Reason) ? "" : ToStd(Reason.ToString());
}
}

TEST(PluginDescriptor, FieldsAreRead)
{
	FPluginDescriptor Descriptor;
	FText Reason;
	EXPECT_TRUE(Descriptor.Load(FString(UTF8_TO_TCHAR(REPOSITORY_DIR "/Tintmill.uplugin")), Reason)) << ToStd(Reason.ToString());
	EXPECT_EQ("Tintmill", ToStd(Descriptor.FriendlyName));
	EXPECT_EQ("4.27.0", ToStd(Descriptor.EngineVersion));
	EXPECT_EQ(EPluginEnabledByDefault::Enabled, Descriptor.EnabledByDefault);
	ASSERT_EQ(2, Descriptor.Modules.Num());
	EXPECT_EQ("TintmillEditor", ToStd(Descriptor.Modules[1].Name));
	EXPECT_EQ(EHostType::Editor, Descriptor.Modules[1].Type);
	EXPECT_EQ(ELoadingPhase::Default, Descriptor.Modules[1].LoadingPhase);
}

TEST(PluginDescriptor, UnknownFieldsAreIgnored)
{
	EXPECT_EQ("", Complain("{ \"FileVersion\": 3, \"LocalizationTargets\": [], \"NewThing\": { \"a\": [ 1, null ] } }"));
}

TEST(PluginDescriptor, EscapesInTextsAreRead)
{
	FPluginDescriptor Descriptor;
	FText Reason;
	EXPECT_TRUE(Descriptor.Read(TEXT("{\"FileVersion\":3,\"Description\":\"a\\\"b\\\\c\\n\\u00e9\\/\"}"), Reason));
	EXPECT_EQ("a\"b\\c\n\xc3\xa9/", ToStd(Descriptor.Description));
}

TEST(PluginDescriptor, MissingOrStrangeVersionIsRefused)
{
	EXPECT_EQ("line 1: \"FileVersion\" must be a number from 1 to 3", Complain("{}"));
	EXPECT_EQ("line 2: \"FileVersion\" must be a number from 1 to 3", Complain("{\n\"FileVersion\": 4}"));
}

TEST(PluginDescriptor, FieldOfTheWrongTypeIsRefusedWithItsLine)
{
	EXPECT_EQ("line 2: \"Version\" must be a whole number but is a text in quotes", Complain("{\"FileVersion\": 3,\n\"Version\": \"1\"}"));
	EXPECT_EQ("line 2: \"Installed\" must be true or false but is a number", Complain("{\"FileVersion\": 3,\n\"Installed\": 1}"));
	EXPECT_EQ("line 2: \"Version\" must be a whole number", Complain("{\"FileVersion\": 3,\n\"Version\": 1.5}"));
	EXPECT_EQ("line 2: \"Modules\" must be a list of objects", Complain("{\"FileVersion\": 3,\n\"Modules\": [ 1 ]}"));
}

TEST(PluginDescriptor, ModuleIsRefusedWithoutNameOrWithUnknownWords)
{
	EXPECT_EQ("line 2: a module has no usable \"Name\"", Complain("{\"FileVersion\": 3, \"Modules\": [\n{ \"Type\": \"Runtime\" } ]}"));
	EXPECT_EQ("line 2: module M has an unknown \"Type\" \"Edtor\"",
		Complain("{\"FileVersion\": 3, \"Modules\": [ { \"Name\": \"M\",\n\"Type\": \"Edtor\" } ]}"));
	EXPECT_EQ("line 2: module M has an unknown \"LoadingPhase\" \"Later\"",
		Complain("{\"FileVersion\": 3, \"Modules\": [ { \"Name\": \"M\", \"Type\": \"Editor\",\n\"LoadingPhase\": \"Later\" } ]}"));
}

TEST(PluginDescriptor, TextThatIsNotJsonIsRefusedWithItsLine)
{
	EXPECT_EQ("line 1: a value is missing at the end of the file", Complain(""));
	EXPECT_EQ("line 1: the file must hold an object in braces but holds a list", Complain("[]"));
	EXPECT_EQ("line 3: a comma or } was expected but '\"' stands here", Complain("{\n\"FileVersion\": 3\n\"Version\": 1\n}"));
	EXPECT_EQ("line 3: a field name in quotes was expected but '}' stands here", Complain("{\n\"FileVersion\": 3,\n}"));
	EXPECT_EQ("line 2: a string is not closed in its line", Complain("{\n\"FileVersion\n\": 3 }"));
	EXPECT_EQ("line 1: a string is not closed", Complain("{\"FileVersion"));
	EXPECT_EQ("line 1: a comma or } was expected but the end of the file stands here", Complain("{\"FileVersion\": 3"));
	EXPECT_EQ("line 2: there is text behind the last brace", Complain("{\"FileVersion\": 3}\nmore"));
	EXPECT_EQ("line 1: the field \"FileVersion\" stands twice", Complain("{\"FileVersion\": 3, \"FileVersion\": 3}"));
	EXPECT_EQ("line 1: a number is malformed", Complain("{\"FileVersion\": 03}"));
	EXPECT_EQ("line 1: a value is misspelt: only true, false and null are written without quotes", Complain("{\"Hidden\": tru }"));
	EXPECT_EQ("line 1: values are nested too deeply", Complain("{\"A\":" + std::string(100000, '[')));
}

TEST(PluginDescriptor, MissingFileIsNamed)
{
	const FTestFolder Folder;
	FPluginDescriptor Descriptor;
	FText Reason;
	EXPECT_FALSE(Descriptor.Load(Folder.Path("None.uplugin"), Reason));
	EXPECT_EQ(ToStd(Folder.Path("None.uplugin")) + ": the file cannot be read", ToStd(Reason.ToString()));
}
