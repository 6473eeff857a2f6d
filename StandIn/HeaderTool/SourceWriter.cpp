// Copyright The Tintmill authors. All rights reserved.
#include "SourceWriter.h"

#include "CrossReferences.h"
#include "GeneratedText.h"
#include "TextTools.h"

namespace HeaderTool
{

std::string WriteSource(const FHeader& Header)
{
	FCrossReferences References;
	std::string Body;
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Enum))
	{
		References.AddUses(*Type);
		Body += WriteEnumSource(*Type);
	}
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Struct))
	{
		References.AddUses(*Type);
		Body += WriteStructSource(*Type);
	}
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Class))
	{
		References.AddUses(*Type);
		Body += WriteClassSource(*Type);
	}
	return GetSourceOpening(Header.Module->Name + "/" + Header.ModuleRelativePath)
		+ Fill("void EmptyLinkFunctionForGeneratedCode$0() {}\n", {ToIdentifier(Header.Leaf)}) + References.Write() + Body
		+ GetSourceClosing();
}

}
