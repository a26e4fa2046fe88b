%% Random values of one type, bounded in size, steered towards what has not occurred yet in the run.
%%
%% A case is one thing that has to occur: a member present or absent, an addition sent or not, an alternative, an
%% enumeration value, either truth value, either end of an integer's range or of a list's size.
-module(oracle_generate).
-export([start/3, value/0, coverage/0, missing/0]).

-define(CASES, oracle_cases).

%% Octets a value may take: mostly moderate, now and then all that is allowed, so that the longest lists fit.
-define(MODERATE, 1900).
-define(WIDE, 7900).

%% An addition's share of the extension bitmap, its length and its padding, in bits, at most.
-define(ADDITION, 40).

start(Type, Seed, Model) ->
    rand:seed(exsss, Seed),
    put(model, Model),
    put(root, {ref, Type}),
    put(round, 0),
    _ = [ets:delete(?CASES) || ets:info(?CASES) =/= undefined],
    ets:new(?CASES, [named_table]),
    ets:insert(?CASES, [{Case, 0} || Case <- cases([Type], [])]),
    put(missing, ets:info(?CASES, size)),
    ok.

value() ->
    put(round, get(round) + 1),
    Octets = case chance(0.85) of
                 true -> between(50, ?MODERATE);
                 false -> ?WIDE
             end,
    put(left, 8 * Octets - least(get(root))),
    put(density, one_of([0.2, 0.5, 0.7, 0.95])),
    value(get(root)).

missing() ->
    lists:sort([lists:flatten(io_lib:format("~s: ~s ~p", [Path, What, Detail]))
                || {{Path, {What, Detail}}, 0} <- ets:tab2list(?CASES)]).

coverage() ->
    Count = fun({{_, What}, Times}, Kinds) ->
                    maps:update_with(kind(What), fun({Seen, All}) -> {Seen + min(Times, 1), All + 1} end,
                                     {min(Times, 1), 1}, Kinds)
            end,
    [{Kind, Seen, All} || {Kind, {Seen, All}} <- lists:sort(maps:to_list(ets:foldl(Count, #{}, ?CASES)))].

kind({present, _}) -> "members present";
kind({absent, _}) -> "members absent";
kind({sent, _}) -> "extension additions sent";
kind({not_sent, _}) -> "extension additions not sent";
kind({alternative, _}) -> "alternatives";
kind({enumeration, _}) -> "enumeration values";
kind({boolean, _}) -> "truth values";
kind({integer, _}) -> "ends of integer ranges";
kind({size, _}) -> "ends of list sizes".

%% All cases that the types reach. Each type is visited once: a case belongs to the place in the schema, not to the
%% way there.
cases([], Done) ->
    lists:append([own(maps:get(Name, get(model))) || Name <- Done]);
cases([Name | Names], Done) ->
    case lists:member(Name, Done) of
        true -> cases(Names, Done);
        false -> cases(refs(maps:get(Name, get(model))) ++ Names, [Name | Done])
    end.

refs({ref, Name}) -> [Name];
refs(Type) -> lists:flatmap(fun refs/1, parts(Type)).

own({ref, _}) -> [];
own(Type) -> [{element(2, Type), What} || What <- here(Type)] ++ lists:flatmap(fun own/1, parts(Type)).

parts({sequence, _, Members, Additions}) ->
    [Type || {_, _, Type, _} <- Members ++ lists:flatmap(fun added/1, Additions)];
parts({choice, _, Alternatives, _}) -> [Type || {_, Type} <- Alternatives];
parts({list, _, _, _, Element}) -> [Element];
parts(_) -> [].

added({lone, Member}) -> [Member];
added({group, _, Members}) -> Members.

here({sequence, _, Members, Additions}) ->
    lists:flatmap(fun member_cases/1, Members) ++ lists:flatmap(fun addition_cases/1, Additions);
here({choice, _, Alternatives, _}) -> [{alternative, Name} || {Name, _} <- Alternatives];
here({list, _, Lower, Upper, _}) -> lists:usort([{size, Lower}, {size, Upper}]);
here({enumerated, _, Values}) -> [{enumeration, Value} || Value <- Values];
here({integer, _, Lower, Upper}) -> lists:usort([{integer, Lower}, {integer, Upper}]);
here({boolean, _}) -> [{boolean, false}, {boolean, true}];
here({bits, _, _}) -> [];
here({null, _}) -> [].

member_cases({_, _, _, mandatory}) -> [];
member_cases({_, Name, _, optional}) -> [{present, Name}, {absent, Name}].

addition_cases({lone, {_, Name, _, _}}) ->
    [{sent, Name}, {not_sent, Name}];
%% A group is sent only when it holds something, so its only member is never absent from it.
addition_cases({group, Number, [Member]}) ->
    [{sent, Number}, {not_sent, Number}] ++ [Case || {present, _} = Case <- member_cases(Member)];
addition_cases({group, Number, Members}) ->
    [{sent, Number}, {not_sent, Number}] ++ lists:flatmap(fun member_cases/1, Members).

%% `left` is what the value may still grow beyond the least size of everything already decided on, in bits.
value({ref, Name}) ->
    value(maps:get(Name, get(model)));
value({sequence, Path, Members, Additions} = Type) ->
    % In random order: no member is short of bits for standing behind another.
    Fields = lists:flatmap(fun(Part) -> fields(Part, Path) end, shuffled(Members ++ Additions)),
    erlang:make_tuple(length(parts(Type)) + 1, asn1_NOVALUE, [{1, sequence} | Fields]);
value({choice, Path, Alternatives, _} = Type) ->
    Least = least(Type) - index_bits(Type),
    Extra = fun(Alternative) -> least(Alternative) - Least end,
    Affordable = [A || {_, Alternative} = A <- Alternatives, Extra(Alternative) =< get(left)],
    Wanted = [A || {Name, Alternative} = A <- Affordable, new(Path, {alternative, Name}) orelse wanted(Alternative)],
    {Name, Chosen} = preferred(Wanted, Affordable),
    occurred(Path, {alternative, Name}),
    spend(Extra(Chosen)),
    {Name, value(Chosen)};
value({list, Path, Lower, Upper, Element}) ->
    Most = min(Upper, Lower + get(left) div max(1, least(Element))),
    Size = size(Path, Lower, Upper, Most),
    occurred(Path, {size, Size}),
    spend((Size - Lower) * least(Element)),
    [value(Element) || _ <- lists:seq(1, Size)];
value({enumerated, Path, Values}) ->
    Value = preferred([V || V <- Values, new(Path, {enumeration, V})], Values),
    occurred(Path, {enumeration, Value}),
    Value;
value({integer, Path, Lower, Upper}) ->
    Ends = [Lower, Upper],
    Usual = case chance(0.1) of
                true -> one_of(Ends);
                false -> between(Lower, Upper)
            end,
    Value = preferred([End || End <- Ends, new(Path, {integer, End})], [Usual]),
    occurred(Path, {integer, Value}),
    Value;
value({boolean, Path}) ->
    Value = preferred([V || V <- [false, true], new(Path, {boolean, V})], [false, true]),
    occurred(Path, {boolean, Value}),
    Value;
value({bits, _, Length}) ->
    << <<(between(0, 1)):1>> || _ <- lists:seq(1, Length) >>;
value({null, _}) ->
    'NULL'.

fields({Position, _, Type, mandatory}, _) ->
    [{Position, value(Type)}];
fields({Position, Name, Type, optional}, Path) ->
    case include(Path, {present, Name}, {absent, Name}, least(Type), [Type]) of
        true -> [{Position, value(Type)}];
        false -> []
    end;
fields({lone, {Position, Name, Type, _}}, Path) ->
    case include(Path, {sent, Name}, {not_sent, Name}, least(Type) + ?ADDITION, [Type]) of
        true -> [{Position, value(Type)}];
        false -> []
    end;
fields({group, Number, Members}, Path) ->
    Mandatory = [Type || {_, _, Type, mandatory} <- Members],
    {_, _, _, Presence} = Sure = one_of(Members),
    Bits = ?ADDITION + length(Members) + sum([Type || {_, _, Type, optional} <- [Sure]]) + sum(Mandatory),
    Types = [Type || {_, _, Type, _} <- Members],
    case include(Path, {sent, Number}, {not_sent, Number}, Bits, Types) of
        true when Presence =:= optional ->
            {Position, Name, Type, _} = Sure,
            occurred(Path, {present, Name}),
            [{Position, value(Type)} | lists:flatmap(fun(Member) -> fields(Member, Path) end, Members -- [Sure])];
        true ->
            lists:flatmap(fun(Member) -> fields(Member, Path) end, Members);
        false ->
            []
    end.

%% Whether to include what may be left out, and if so take its least size from what is left.
include(Path, Yes, No, Bits, Types) ->
    Include = Bits =< get(left) andalso
        case new(Path, Yes) orelse lists:any(fun wanted/1, Types) of
            true -> chance(0.9);
            false -> not new(Path, No) andalso chance(get(density))
        end,
    case Include of
        true -> occurred(Path, Yes), spend(Bits);
        false -> occurred(Path, No)
    end,
    Include.

size(Path, Lower, Upper, Most) ->
    Ends = [End || End <- [Lower, Upper], End =< Most, new(Path, {size, End})],
    case Ends =/= [] andalso chance(0.4) of
        true -> one_of(Ends);
        false -> usual_size(Lower, Most, rand:uniform())
    end.

usual_size(_, Most, Draw) when Draw < 0.02 -> Most;
usual_size(Lower, Most, Draw) when Draw < 0.05 -> between(Lower, Most);
usual_size(Lower, Most, _) -> between(Lower, min(Lower + 2, Most)).

%% Something new nearly always, but not always: what is new here may cost what is new elsewhere.
preferred([], Others) -> one_of(Others);
preferred(New, Others) ->
    case chance(0.9) of
        true -> one_of(New);
        false -> one_of(Others)
    end.

%% The least number of bits a value of the type takes.
least({ref, Name}) ->
    least(maps:get(Name, get(model)));
least(Type) ->
    Key = {least, element(2, Type)},
    case get(Key) of
        undefined ->
            Bits = least_bits(Type),
            put(Key, Bits),
            Bits;
        Bits ->
            Bits
    end.

least_bits({sequence, _, Members, _}) ->
    1 + length([optional || {_, _, _, optional} <- Members]) + sum([Type || {_, _, Type, mandatory} <- Members]);
least_bits({choice, _, Alternatives, _} = Type) ->
    index_bits(Type) + lists:min([least(Alternative) || {_, Alternative} <- Alternatives]);
least_bits({list, _, Lower, Upper, Element}) -> bits_for(Upper - Lower + 1) + Lower * least(Element);
least_bits({enumerated, _, Values}) -> bits_for(length(Values));
least_bits({integer, _, Lower, Upper}) -> bits_for(Upper - Lower + 1);
least_bits({bits, _, Length}) -> Length;
least_bits({boolean, _}) -> 1;
least_bits({null, _}) -> 0.

sum(Types) -> lists:sum([least(Type) || Type <- Types]).

index_bits({choice, _, Alternatives, false}) -> bits_for(length(Alternatives));
index_bits({choice, _, Alternatives, true}) -> bits_for(length(Alternatives)) + 1 + ?ADDITION.

bits_for(Count) -> bits_for(Count, 0).

bits_for(Count, Bits) when 1 bsl Bits >= Count -> Bits;
bits_for(Count, Bits) -> bits_for(Count, Bits + 1).

%% Whether something within the type has not occurred yet. No stays no; yes is looked up again for the next value.
wanted(Type) -> get(missing) > 0 andalso wanted_within(Type).

wanted_within({ref, Name}) ->
    wanted_within(maps:get(Name, get(model)));
wanted_within(Type) ->
    Path = element(2, Type),
    Round = get(round),
    case get({wanted, Path}) of
        no ->
            false;
        Round ->
            true;
        _ ->
            Wanted = lists:any(fun(What) -> new(Path, What) end, here(Type))
                orelse lists:any(fun wanted_within/1, parts(Type)),
            put({wanted, Path}, case Wanted of true -> Round; false -> no end),
            Wanted
    end.

new(Path, What) ->
    get(missing) > 0 andalso ets:lookup(?CASES, {Path, What}) =:= [{{Path, What}, 0}].

%% Sizes and integers between their ends are no cases.
occurred(Path, What) ->
    case ets:lookup(?CASES, {Path, What}) of
        [] ->
            ok;
        [{Case, Times}] ->
            Times =:= 0 andalso put(missing, get(missing) - 1),
            ets:insert(?CASES, {Case, Times + 1}),
            ok
    end.

spend(Bits) -> put(left, get(left) - Bits).

chance(Probability) -> rand:uniform() < Probability.

between(Lower, Upper) -> Lower + rand:uniform(Upper - Lower + 1) - 1.

one_of(List) -> lists:nth(rand:uniform(length(List)), List).

shuffled(List) -> [Item || {_, Item} <- lists:sort([{rand:uniform(), Item} || Item <- List])].
