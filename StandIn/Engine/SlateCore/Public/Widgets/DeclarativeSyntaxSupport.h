// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Styling/ISlateStyle.h"
#include "Templates/Function.h"
#include "Types/ISlateMetaData.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"
#include <tuple>
#include <utility>

class IToolTip;

// The syntax in which widgets are declared and made. Left out: render transforms, flow direction, accessibility among the
// arguments of every widget.

/** Makes a widget: SNew(SFoo, required arguments)…; gives a TSharedRef. */
#define SNew(WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= \
		typename WidgetType::FArguments()

/** Makes a widget and assigns it to a pointer before it is constructed. */
#define SAssignNew(ExposeAs, WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)).Expose(ExposeAs) <<= \
		typename WidgetType::FArguments()

/** Makes a widget of arguments that were put together before. */
#define SArgumentNew(InArgs, WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= InArgs

/** Opens a widget's arguments; initialisers and {} follow. */
#define SLATE_BEGIN_ARGS(WidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<WidgetType> \
	{ \
		typedef FArguments WidgetArgsType; \
		FORCENOINLINE FArguments()

/** Closes a widget's arguments. */
#define SLATE_END_ARGS() \
	} \
	;

/** Opens the arguments of a slot that others give. */
#define SLATE_USER_ARGS(WidgetType) SLATE_BEGIN_ARGS(WidgetType)

#define SLATE_PRIVATE_ARGUMENT_VARIABLE(ArgType, ArgName) ArgType _##ArgName

#define SLATE_PRIVATE_ARGUMENT_FUNCTION(ArgType, ArgName) \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = InArg; \
		return this->Me(); \
	}

/** Declares an argument: a value taken once. */
#define SLATE_ARGUMENT(ArgType, ArgName) \
	SLATE_PRIVATE_ARGUMENT_VARIABLE(ArgType, ArgName); \
	SLATE_PRIVATE_ARGUMENT_FUNCTION(ArgType, ArgName)

/** Declares an argument that is a pointer to a widget style. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName) \
	const ArgType* _##ArgName; \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{ \
		_##ArgName = InArg; \
		return this->Me(); \
	} \
	WidgetArgsType& ArgName(const class ISlateStyle* InSlateStyle, const FName& StyleName, const ANSICHAR* Specifier = nullptr) \
	{ \
		check(InSlateStyle != nullptr); \
		_##ArgName = &InSlateStyle->GetWidgetStyle<ArgType>(StyleName, Specifier); \
		return this->Me(); \
	} \
	WidgetArgsType& ArgName(const class ISlateStyle& InSlateStyle, const FName& StyleName, const ANSICHAR* Specifier = nullptr) \
	{ \
		_##ArgName = &InSlateStyle.GetWidgetStyle<ArgType>(StyleName, Specifier); \
		return this->Me(); \
	}

#define SLATE_PRIVATE_ATTRIBUTE_VARIABLE(AttrType, AttrName) TAttribute<AttrType> _##AttrName

#define SLATE_PRIVATE_ATTRIBUTE_FUNCTION(AttrType, AttrName) \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = InAttribute; \
		return this->Me(); \
	} \
	template <typename FunctionType, typename... VarTypes> \
	WidgetArgsType& AttrName##_Static(FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateStatic(InFunc, Vars...)); \
		return this->Me(); \
	} \
	WidgetArgsType& AttrName##_Lambda(TFunction<AttrType(void)> InFunctor) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateLambda(MoveTemp(InFunctor))); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& AttrName##_Raw(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateRaw(InUserObject, InFunc, Vars...)); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& AttrName(TSharedRef<UserClass> InUserObjectRef, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(InUserObjectRef, InFunc, Vars...)); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& AttrName(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(InUserObject, InFunc, Vars...)); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& AttrName##_UObject(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateUObject(InUserObject, InFunc, Vars...)); \
		return this->Me(); \
	}

/** Declares an attribute: a value or something polled for it. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(AttrType, AttrName); \
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(AttrType, AttrName)

/** Declares an event: a delegate that the widget calls. */
#define SLATE_EVENT(DelegateName, EventName) \
	DelegateName _##EventName; \
	WidgetArgsType& EventName(const DelegateName& InDelegate) \
	{ \
		_##EventName = InDelegate; \
		return this->Me(); \
	} \
	template <typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName##_Static(FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateStatic(InFunc, Vars...); \
		return this->Me(); \
	} \
	template <typename FunctorType, typename... VarTypes> \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateLambda(Forward<FunctorType>(InFunctor), Vars...); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName##_Raw(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateRaw(InUserObject, InFunc, Vars...); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName(TSharedRef<UserClass> InUserObjectRef, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObjectRef, InFunc, Vars...); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc, Vars...); \
		return this->Me(); \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName##_UObject(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateUObject(InUserObject, InFunc, Vars...); \
		return this->Me(); \
	}

/** Declares that the widget takes slots with operator+. */
#define SLATE_SUPPORTS_SLOT(SlotType) \
	TArray<SlotType*> Slots; \
	WidgetArgsType& operator+(SlotType& SlotToAdd) \
	{ \
		Slots.Add(&SlotToAdd); \
		return this->Me(); \
	}

/** Declares a place for one widget, given as Name()[ … ]. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	TAlwaysValidWidget _##SlotName; \
	NamedSlotProperty<DeclarationType> SlotName() \
	{ \
		return NamedSlotProperty<DeclarationType>(this->Me(), _##SlotName); \
	}

/** Declares the place for one widget that is given as [ … ]. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName.Widget = InChild; \
		return this->Me(); \
	}

/** A place for a widget that holds the null widget at first. */
struct TAlwaysValidWidget
{
	/** Makes a place of the null widget. */
	TAlwaysValidWidget()
		: Widget(SNullWidget::NullWidget)
	{}

	/** The widget. */
	TSharedRef<SWidget> Widget;
};

/** Puts a widget into a named place of an argument block. */
template <class DeclarationType>
struct NamedSlotProperty
{
	/** Names the block and the place. */
	NamedSlotProperty(DeclarationType& InOwnerDeclaration, TAlwaysValidWidget& ContentToSet)
		: OwnerDeclaration(InOwnerDeclaration)
		, SlotContent(ContentToSet)
	{}

	/** Puts a widget into the place and returns the block. */
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		SlotContent.Widget = InChild;
		return OwnerDeclaration;
	}

	/** The block. */
	DeclarationType& OwnerDeclaration;

	/** The place. */
	TAlwaysValidWidget& SlotContent;
};

/** The arguments that every widget takes. */
struct FSlateBaseNamedArgs
{
	/** Makes the arguments with their defaults: enabled, visible, opaque. */
	FSlateBaseNamedArgs()
		: _IsEnabled(true)
		, _Visibility(EVisibility::Visible)
		, _RenderOpacity(1.0f)
		, _Clipping(EWidgetClipping::Inherit)
	{}

	TAttribute<FText> _ToolTipText;
	TSharedPtr<IToolTip> _ToolTip;
	TAttribute<TOptional<EMouseCursor::Type>> _Cursor;
	TAttribute<bool> _IsEnabled;
	TAttribute<EVisibility> _Visibility;
	float _RenderOpacity;
	EWidgetClipping _Clipping;
	FName _Tag;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
};

/** The arguments that every widget takes, chained in the widget's own argument type. */
template <class InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	typedef typename InWidgetType::FArguments WidgetArgsType;
	typedef InWidgetType WidgetType;

	/** Returns the whole block. */
	WidgetArgsType& Me() { return *static_cast<WidgetArgsType*>(this); }

	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(FText, ToolTipText)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(TSharedPtr<IToolTip>, ToolTip)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(TOptional<EMouseCursor::Type>, Cursor)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(bool, IsEnabled)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(EVisibility, Visibility)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(float, RenderOpacity)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(EWidgetClipping, Clipping)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(FName, Tag)

	/** Attaches data to the widget. */
	WidgetArgsType& AddMetaData(TSharedRef<ISlateMetaData> InMetaData)
	{
		MetaData.Add(InMetaData);
		return Me();
	}
};

namespace RequiredArgs
{
/** Holds the arguments that follow the widget's type until Construct is called. */
template <typename... ArgTypes>
struct TRequiredArgs
{
	/** Holds references to the arguments, which outlive the expression that makes the widget. */
	TRequiredArgs(ArgTypes&&... InArgs)
		: Args(std::forward<ArgTypes>(InArgs)...)
	{}

	/** Calls Construct with the block and the arguments. */
	template <class WidgetType>
	void CallConstruct(WidgetType& OnWidget, const typename WidgetType::FArguments& WithNamedArgs)
	{
		Call(OnWidget, WithNamedArgs, std::index_sequence_for<ArgTypes...>());
	}

	/** The arguments. */
	std::tuple<ArgTypes&&...> Args;

private:
	template <class WidgetType, std::size_t... Indices>
	void Call(WidgetType& OnWidget, const typename WidgetType::FArguments& WithNamedArgs, std::index_sequence<Indices...>)
	{
		OnWidget.Construct(WithNamedArgs, std::forward<ArgTypes>(std::get<Indices>(Args))...);
	}
};

/** Collects the arguments that follow the widget's type. */
template <typename... ArgTypes>
TRequiredArgs<ArgTypes...> MakeRequiredArgs(ArgTypes&&... InArgs)
{
	return TRequiredArgs<ArgTypes...>(std::forward<ArgTypes>(InArgs)...);
}
}

/** Allocates widgets for SNew; nothing else can. */
template <typename WidgetType>
struct TWidgetAllocator
{
	/** Allocates a widget that is not constructed yet. */
	static TSharedRef<WidgetType> PrivateAllocateWidget() { return MakeShareable(new WidgetType()); }
};

/** A widget being made: allocated, then constructed by <<= with its arguments. */
template <class WidgetType, typename RequiredArgsPayloadType>
struct TSlateDecl
{
	/** Allocates the widget. */
	TSlateDecl(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
		: Widget(TWidgetAllocator<WidgetType>::PrivateAllocateWidget())
		, RequiredArgsPayload(std::move(InRequiredArgs))
	{
		Widget->SetDebugInfo(InType, InFile, OnLine);
	}

	/** Assigns the widget, not constructed yet, to a pointer. */
	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	/** Assigns the widget, not constructed yet, to a reference. */
	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedRef<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	/** Assigns the widget, not constructed yet, to a weak pointer. */
	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TWeakPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	/** Constructs the widget: first what all widgets share, then its own Construct. */
	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs)
	{
		Widget->SWidgetConstruct(InArgs);
		RequiredArgsPayload.CallConstruct(*Widget, InArgs);
		return Widget;
	}

	/** The widget. */
	const TSharedRef<WidgetType> Widget;

	/** The arguments that follow the type. */
	RequiredArgsPayloadType RequiredArgsPayload;
};

/** Begins to make a widget; for SNew. */
template <typename WidgetType, typename RequiredArgsPayloadType>
TSlateDecl<WidgetType, RequiredArgsPayloadType> MakeTDecl(
	const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
{
	return TSlateDecl<WidgetType, RequiredArgsPayloadType>(InType, InFile, OnLine, std::move(InRequiredArgs));
}
