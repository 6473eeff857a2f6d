// Copyright The Tintmill authors. All rights reserved.
#include "Diagnostics.h"
#include "MetaSpecifiers.h"
#include "PropertyResolver.h"

#include <algorithm>

namespace HeaderTool
{

namespace
{

struct FPropertyWord
{
	const char* Word;
	std::uint64_t Flags;
};

const FPropertyWord PropertyWords[] = {
	{"advanceddisplay", CpfAdvancedDisplay},
	{"blueprintreadonly", CpfBlueprintVisible | CpfBlueprintReadOnly},
	{"blueprintreadwrite", CpfBlueprintVisible},
	{"config", CpfConfig},
	{"duplicatetransient", CpfDuplicateTransient},
	{"editanywhere", CpfEdit},
	{"editdefaultsonly", CpfEdit | CpfDisableEditOnInstance},
	{"editfixedsize", CpfEditFixedSize},
	{"editinstanceonly", CpfEdit | CpfDisableEditOnTemplate},
	{"globalconfig", CpfConfig | CpfGlobalConfig},
	{"noclear", CpfNoClear},
	{"nontransactional", CpfNonTransactional},
	{"savegame", CpfSaveGame},
	{"simpledisplay", CpfSimpleDisplay},
	{"textexporttransient", CpfTextExportTransient},
	{"transient", CpfTransient},
	{"visibleanywhere", CpfEdit | CpfEditConst},
	{"visibledefaultsonly", CpfEdit | CpfEditConst | CpfDisableEditOnInstance},
	{"visibleinstanceonly", CpfEdit | CpfEditConst | CpfDisableEditOnTemplate},
};

/** Words that the engine knows and this tool has no use for. */
const char* const OtherPropertyWords[] = {"assetregistrysearchable", "blueprintassignable", "blueprintauthorityonly", "blueprintcallable",
	"blueprintgetter", "blueprintsetter", "editinline", "export", "fieldnotify", "instanced", "interp", "localized", "native",
	"nonpieduplicatetransient", "nonpietransient", "notreplicated", "ref", "replicated", "replicatedusing", "repretry",
	"skipserialization"};

}

void FPropertyResolver::ApplySpecifiers(FProperty& Property) const
{
	switch (Property.Access)
	{
	case EAccess::Public:
		Property.Flags = CpfAccessPublic;
		break;
	case EAccess::Protected:
		Property.Flags = CpfAccessProtected | CpfProtected;
		break;
	case EAccess::Private:
		Property.Flags = CpfAccessPrivate;
		break;
	}
	Property.Flags |= Property.bEditorOnly ? CpfEditorOnly : 0;
	for (const FSpecifier& Specifier : Property.Specifiers.Specifiers)
	{
		if (!ApplySpecifier(Property, Specifier))
		{
			const bool bKnown = std::any_of(std::begin(OtherPropertyWords), std::end(OtherPropertyWords),
				[&Specifier](const char* Word) { return Specifier.Is(Word); });
			throw FSyntaxError(Specifier.Line,
				bKnown ? "The variable specifier '" + Specifier.Name + "' is not in this header tool"
					   : "Unknown variable specifier '" + Specifier.Name + "'");
		}
	}
}

bool FPropertyResolver::ApplySpecifier(FProperty& Property, const FSpecifier& Specifier) const
{
	if (Specifier.Is("category") || Specifier.Is("displayname"))
	{
		if (!Specifier.bHasValue)
		{
			throw FSyntaxError(Specifier.Line, "The specifier '" + Specifier.Name + "' must be given a value");
		}
		Property.MetaData.Set(Specifier.Is("category") ? "Category" : "DisplayName", Specifier.GetJoinedValues());
		return true;
	}
	for (const FPropertyWord& Word : PropertyWords)
	{
		if (Specifier.Is(Word.Word))
		{
			Property.Flags |= Word.Flags;
			return true;
		}
	}
	return false;
}

void FPropertyResolver::ApplyMetaData(FProperty& Property) const
{
	FDiagnostics Found;
	ApplyMeta(Property.Specifiers, Property.MetaData, "", Found);
	if (Found.HasErrors())
	{
		throw FSyntaxError(Found.Get()[0].Line, Found.Get()[0].Text);
	}
	Property.MetaData.Set("ModuleRelativePath", Owner.Header->ModuleRelativePath);
	Property.MetaData.AddComment(Property.Comment);
}

void FPropertyResolver::CheckRules(const FProperty& Property) const
{
	const FPropertyType& Type = Property.Type;
	const EPropertyKind Innermost = Type.Kind == EPropertyKind::Array ? Type.Inner->Kind : Type.Kind;
	if ((Property.Flags & CpfConfig) != 0 && (Innermost == EPropertyKind::Object || Innermost == EPropertyKind::WeakObject))
	{
		throw FSyntaxError(Property.Line, "Not allowed to use 'config' with object variables");
	}
	if (Property.bFixedArray && Type.Kind == EPropertyKind::Array)
	{
		throw FSyntaxError(Property.Line, "Static arrays of containers are not allowed");
	}
	if (Property.bFixedArray && Type.Kind == EPropertyKind::Bool)
	{
		throw FSyntaxError(Property.Line, "Bool arrays are not allowed");
	}
	if ((Property.Flags & (CpfEdit | CpfBlueprintVisible)) != 0 && Property.MetaData.Find("Category") == nullptr)
	{
		throw FSyntaxError(Property.Line,
			"An explicit Category specifier is required for any property exposed to the editor or Blueprints in an Engine module.");
	}
	const bool bMayBePrivate = std::any_of(Property.Specifiers.Meta.begin(), Property.Specifiers.Meta.end(),
		[](const FSpecifier& Pair) { return Pair.Is("AllowPrivateAccess"); });
	if ((Property.Flags & CpfBlueprintVisible) != 0 && Property.Access == EAccess::Private && !bMayBePrivate)
	{
		const char* Word = (Property.Flags & CpfBlueprintReadOnly) != 0 ? "BlueprintReadOnly" : "BlueprintReadWrite";
		throw FSyntaxError(Property.Line, std::string(Word) + " should not be used on private members");
	}
	const std::string Suffix = "_DEPRECATED";
	if (Property.Name.size() > Suffix.size() && Property.Name.compare(Property.Name.size() - Suffix.size(), Suffix.size(), Suffix) == 0)
	{
		throw FSyntaxError(Property.Line, "Properties named ..._DEPRECATED are not in this header tool");
	}
}

}
