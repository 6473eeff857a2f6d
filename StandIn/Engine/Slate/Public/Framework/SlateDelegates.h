// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"

class ITableRow;
class STableViewBase;
class SWidget;
struct FPointerEvent;
struct FGeometry;
enum class ECheckBoxState : uint8;

// Delegates that several widgets share.

DECLARE_DELEGATE_RetVal(FReply, FOnClicked) DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent)
	DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState) DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&)
		DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type) DECLARE_DELEGATE_OneParam(FOnFloatValueChanged, float)
			DECLARE_DELEGATE_OneParam(FOnUserScrolled, float)
				DECLARE_DELEGATE_RetVal_TwoParams(FReply, FOnKeyDown, const FGeometry&, const FKeyEvent&)

	/** Delegates of lists by the type of their items. */
	template <typename ItemType>
	class TSlateDelegates
{
public:
	typedef typename TListTypeTraits<ItemType>::NullableType NullableItemType;

	DECLARE_DELEGATE_RetVal_TwoParams(TSharedRef<ITableRow>, FOnGenerateRow, ItemType, const TSharedRef<STableViewBase>&)
		DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, NullableItemType, ESelectInfo::Type)
			DECLARE_DELEGATE_OneParam(FOnMouseButtonClick, ItemType) DECLARE_DELEGATE_OneParam(FOnMouseButtonDoubleClick, ItemType)
				DECLARE_DELEGATE_OneParam(FOnRowReleased, const TSharedRef<ITableRow>&)
};
