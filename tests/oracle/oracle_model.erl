%% The types of a compiled ASN.1 module as plain terms, read from the database that asn1ct leaves beside the code.
%%
%%   {sequence, Path, Members, Additions}    Member: {Position, Name, Type, mandatory | optional}
%%                                           Addition: {lone, Member} | {group, Number, Members}
%%   {choice, Path, [{Name, Type}], Extensible}
%%   {list, Path, Lower, Upper, Element}
%%   {enumerated, Path, Values}
%%   {integer, Path, Lower, Upper}
%%   {bits, Path, Length}
%%   {boolean, Path}    {null, Path}    {ref, Name}
%%
%% Path is an atom that names the place in the schema, as in 'SearchSpace.searchSpaceType.common'. Position is where
%% asn1ct's record for the SEQUENCE keeps the member.
-module(oracle_model).
-export([load/1]).

%% asn1ct's own types, such as EXTERNAL, stand in the same table, but have no line in the schema.
load(Database) ->
    {ok, Table} = ets:file2tab(Database),
    maps:from_list([{Name, type(Type, atom_to_list(Name))}
                    || {Name, {typedef, _, Line, Name, Type}} <- ets:tab2list(Table), is_integer(Line)]).

type({type, _, Definition, Constraints, _, _}, Path) ->
    type(Definition, Constraints, Path).

type({'SEQUENCE', _, _, _, Components}, [], Path) ->
    {Root, Extension} = parts(Components),
    {Members, Next} = members(Root, 2, Path),
    {sequence, place(Path), Members, additions(Extension, Next, 1, Path)};
type({'CHOICE', Components}, [], Path) ->
    {Root, Extension} = parts(Components),
    {Members, _} = members(Root ++ Extension, 1, Path),
    {choice, place(Path), [{Name, Type} || {_, Name, Type, mandatory} <- Members], is_tuple(Components)};
type({'SEQUENCE OF', Element}, [{'SizeConstraint', {Lower, Upper}}], Path) ->
    {list, place(Path), Lower, Upper, type(Element, Path ++ "[]")};
type({'ENUMERATED', Values}, [], Path) ->
    {enumerated, place(Path), [Name || {Name, _} <- Values]};
type('INTEGER', [{'ValueRange', {Lower, Upper}}], Path) ->
    {integer, place(Path), Lower, Upper};
type({'BIT STRING', []}, [{'SizeConstraint', {Length, Length}}], Path) ->
    {bits, place(Path), Length};
type('BOOLEAN', [], Path) ->
    {boolean, place(Path)};
type('NULL', [], Path) ->
    {null, place(Path)};
type({'Externaltypereference', _, _, Name}, [], _) ->
    {ref, Name}.

place(Path) -> list_to_atom(Path).

parts({Root, Extension}) -> {Root, Extension};
parts(Root) -> {Root, []}.

members(Components, First, Path) ->
    lists:mapfoldl(fun(Component, Position) -> {member(Component, Position, Path), Position + 1} end,
                   First, Components).

member({'ComponentType', _, Name, Type, Presence, _, _}, Position, Path) ->
    {Position, Name, type(Type, Path ++ "." ++ atom_to_list(Name)), presence(Presence)}.

presence(mandatory) -> mandatory;
presence('OPTIONAL') -> optional.

additions([], _, _, _) ->
    [];
additions([{'ExtensionAdditionGroup', _} | Rest], Position, Number, Path) ->
    {Components, ['ExtensionAdditionGroupEnd' | Others]} =
        lists:splitwith(fun(Item) -> Item =/= 'ExtensionAdditionGroupEnd' end, Rest),
    {Members, Next} = members(Components, Position, Path),
    [{group, Number, Members} | additions(Others, Next, Number + 1, Path)];
additions([Component | Rest], Position, Number, Path) ->
    [{lone, member(Component, Position, Path)} | additions(Rest, Position + 1, Number, Path)].
