// Copyright The Tintmill authors. All rights reserved.

#pragma once

// How values are turned to text and back. The bits have the engine's names; their values are this stand-in's own.

/** How values are turned to text and back. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	PPF_ExportsNotFullyQualified = 0x00000001,
	/** Inside of a struct or array: strings and names are quoted. */
	PPF_Delimited = 0x00000002,
	PPF_CheckReferences = 0x00000004,
	PPF_Copy = 0x00000020,
	/** Transient properties take part, too. */
	PPF_IncludeTransient = 0x00000040,
	PPF_DeepComparison = 0x00000100,
	/** Objects are written by path alone. */
	PPF_SimpleObjectText = 0x00000200,
	PPF_PropertyWindow = 0x00020000,
	/** Text goes to or comes from a configuration file. */
	PPF_SerializedAsImportText = 0x00100000,
};
