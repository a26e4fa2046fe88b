%% Commands of the oracle; README.md says what each does.
-module(oracle).
-export([main/0]).

-define(MODULE_NAME, 'NR-RRC-Definitions').
-define(JER, 'NR-RRC-JER').
-define(LARGEST, 8000).

main() ->
    [Folder, Command | Arguments] = init:get_plain_arguments(),
    ok = io:setopts(standard_io, [binary, {encoding, latin1}]),
    Model = oracle_model:load(filename:join(Folder, ?MODULE_NAME) ++ ".asn1db"),
    halt(run(Command, Arguments, Model)).

run("reencode", [], Model) ->
    each_line(fun reencode/2, Model);
run("show", [], Model) ->
    each_line(fun(Type, Octets) -> show(Type, Octets, Model) end, Model);
run("read", [], Model) ->
    each_line(fun(Type, Octets) -> read(Type, Octets, Model) end, Model);
run("jer", [], Model) ->
    each_line(fun jer/2, Model);
run("generate", [Type, Count, Seed], Model) ->
    generate(Type, Count, Seed, all, Model);
run("sample", [Type, Count, Seed], Model) ->
    generate(Type, Count, Seed, some, Model);
run("samples", [Count, Seed], Model) ->
    samples(Count, Seed, Model);
run(Command, Arguments, _) ->
    complain("not understood: ~s~n", [lists:join(" ", [Command | Arguments])]),
    2.

complain(Format, Arguments) ->
    io:format(standard_error, Format, Arguments).

%% Every line in gives one line out, whatever is wrong with it.
each_line(Answer, Model) ->
    case io:get_line("") of
        eof ->
            0;
        Line ->
            Result = case binary:split(Line, [<<" ">>, <<"\n">>], [global, trim_all]) of
                         [Name, Hex] -> answer(Answer, known(Name, Model), octets(Hex));
                         _ -> {error, "a line is '<Type> <hex>'"}
                     end,
            io:put_chars(case Result of
                             {ok, Text} -> [Text, $\n];
                             {error, Reason} -> ["error ", Reason, $\n]
                         end),
            each_line(Answer, Model)
    end.

answer(_, unknown, _) -> {error, "unknown type"};
answer(_, _, bad) -> {error, "not hexadecimal"};
answer(Answer, Type, Octets) -> Answer(Type, Octets).

known(Name, Model) ->
    try binary_to_existing_atom(Name) of
        Type when is_map_key(Type, Model) -> Type;
        _ -> unknown
    catch
        error:_ -> unknown
    end.

octets(Hex) ->
    try binary:decode_hex(Hex)
    catch
        error:_ -> bad
    end.

reencode(Type, Octets) ->
    case decode(Type, Octets) of
        {ok, _, Again} -> {ok, ["ok ", hex(Again)]};
        Error -> Error
    end.

show(Type, Octets, Model) ->
    case decode(Type, Octets) of
        {ok, Value, _} -> {ok, json({ref, Type}, Value, Model)};
        Error -> Error
    end.

%% The octets that the value has again, and the value with numbers for enumerations.
read(Type, Octets, Model) ->
    case decode(Type, Octets) of
        {ok, Value, Again} -> {ok, [hex(Again), $\s, json({ref, Type}, Value, numbered(Model))]};
        Error -> Error
    end.

%% What asn1ct's own JER back end writes.
jer(Type, Octets) ->
    case decode(Type, Octets) of
        {ok, Value, _} -> encoded_jer(?JER:encode(Type, Value));
        Error -> Error
    end.

encoded_jer({error, Reason}) -> {error, reason(Reason)};
encoded_jer(Result) -> Result.

numbered(Model) ->
    Model#{enumerations => numbers}.

%% asn1ct's decoder lets an integer outside its range pass, its encoder does not: a value counts as decoded only when
%% it can be encoded again.
decode(Type, Octets) ->
    case ?MODULE_NAME:decode(Type, Octets) of
        {ok, _, Rest} when bit_size(Rest) >= 8 ->
            {error, io_lib:format("~b surplus octets", [bit_size(Rest) div 8])};
        {ok, Value, _} ->
            case ?MODULE_NAME:encode(Type, Value) of
                {ok, Again} -> {ok, Value, Again};
                {error, Reason} -> {error, reason(Reason)}
            end;
        {error, Reason} ->
            {error, reason(Reason)}
    end.

%% Without the stack that asn1ct puts beside its reason.
reason({asn1, {Reason, _}}) -> io_lib:format("~0p", [Reason]);
reason(Reason) -> io_lib:format("~0p", [Reason]).

hex(Octets) ->
    << <<(digit(Half))>> || <<Half:4>> <= Octets >>.

digit(Half) when Half < 10 -> $0 + Half;
digit(Half) -> $a + Half - 10.

json({ref, Name}, Value, Model) ->
    json(maps:get(Name, Model), Value, Model);
json({sequence, _, Members, Additions}, Value, Model) ->
    Present = [[quoted(Name), $:, json(Type, element(Position, Value), Model)]
               || {Position, Name, Type, _} <- Members ++ lists:flatmap(fun added/1, Additions),
                  element(Position, Value) =/= asn1_NOVALUE],
    [${, lists:join($,, Present), $}];
json({choice, _, Alternatives, _}, {Name, Value}, Model) ->
    {Name, Type} = lists:keyfind(Name, 1, Alternatives),
    [${, quoted(Name), $:, json(Type, Value, Model), $}];
json({list, _, _, _, Element}, Values, Model) ->
    [$[, lists:join($,, [json(Element, Value, Model) || Value <- Values]), $]];
json({enumerated, _, Values}, Value, #{enumerations := numbers}) ->
    integer_to_list(length(lists:takewhile(fun(Other) -> Other =/= Value end, Values)));
json({enumerated, _, _}, Value, _) ->
    quoted(Value);
json({integer, _, _, _}, Value, _) ->
    integer_to_list(Value);
json({bits, _, _}, Value, _) ->
    [$", [$0 + Bit || <<Bit:1>> <= Value], $"];
json({boolean, _}, Value, _) ->
    atom_to_list(Value);
json({null, _}, 'NULL', _) ->
    "null".

added({lone, Member}) -> [Member];
added({group, _, Members}) -> Members.

%% ASN.1 identifiers need no escapes.
quoted(Name) ->
    [$", atom_to_list(Name), $"].

generate(Name, Count, Seed, Wanted, Model) ->
    case {known(list_to_binary(Name), Model), string:to_integer(Count), string:to_integer(Seed)} of
        {Type, {Number, []}, {Start, []}} when Type =/= unknown, is_integer(Number), Number > 0, is_integer(Start) ->
            generate_values(Type, Number, Start, Wanted, Model);
        _ ->
            complain("generate and sample take a type, a count and a seed, not: ~s ~s ~s~n", [Name, Count, Seed]),
            2
    end.

%% One line in, the name of a type, gives COUNT lines out.
samples(Count, Seed, Model) ->
    case io:get_line("") of
        eof ->
            0;
        Line ->
            case generate(binary_to_list(string:trim(Line)), Count, Seed, few, Model) of
                0 -> samples(Count, Seed, Model);
                Status -> Status
            end
    end.

generate_values(Type, Count, Seed, few, Model) ->
    ok = oracle_generate:start(Type, Seed, Model),
    case print_values(Type, Count, Model, []) of
        {ok, _} ->
            0;
        {error, Reason} ->
            complain("seed ~b: ~s~n", [Seed, Reason]),
            1
    end;
generate_values(Type, Count, Seed, Wanted, Model) ->
    ok = oracle_generate:start(Type, Seed, Model),
    case print_values(Type, Count, Model, []) of
        {ok, Sizes} ->
            complain("seed ~b: ~b values of ~s, ~b octets, ~b of them over 2000 octets, the largest ~b~n",
                     [Seed, Count, Type, lists:sum(Sizes), length([Size || Size <- Sizes, Size > 2000]),
                      lists:max(Sizes)]),
            [complain("  ~s: ~b of ~b occurred~n", [Kind, Seen, All])
             || {Kind, Seen, All} <- oracle_generate:coverage()],
            missing(Wanted, oracle_generate:missing());
        {error, Reason} ->
            complain("seed ~b: ~s~n", [Seed, Reason]),
            1
    end.

missing(all, [_ | _] = Missing) ->
    complain("never occurred:~n", []),
    [complain("  ~s~n", [Place]) || Place <- Missing],
    1;
missing(_, _) ->
    0.

print_values(_, 0, _, Sizes) ->
    {ok, Sizes};
print_values(Type, Count, Model, Sizes) ->
    Value = oracle_generate:value(),
    case encoded(Type, Value, Model) of
        {ok, Octets} ->
            io:put_chars([atom_to_list(Type), $\s, hex(Octets), $\n]),
            print_values(Type, Count - 1, Model, [byte_size(Octets) | Sizes]);
        {error, Reason} ->
            {error, io_lib:format("~s~n~s", [Reason, json({ref, Type}, Value, Model)])}
    end.

%% Compared as JSON: the generator does not know the names that asn1ct gives to the records of nested types.
encoded(Type, Value, Model) ->
    round_trip(Type, Value, ?MODULE_NAME:encode(Type, Value), Model).

round_trip(Type, Value, {ok, Octets}, Model) when byte_size(Octets) < ?LARGEST ->
    Meant = iolist_to_binary(json({ref, Type}, Value, Model)),
    case decode(Type, Octets) of
        {ok, Back, Octets} ->
            case iolist_to_binary(json({ref, Type}, Back, Model)) of
                Meant -> {ok, Octets};
                Other -> {error, ["decodes to another value: ", Other, " instead of"]}
            end;
        {ok, _, Again} ->
            {error, ["encoded as ", hex(Octets), ", then again as ", hex(Again)]};
        {error, Reason} ->
            {error, ["does not decode: ", Reason]}
    end;
round_trip(_, _, {ok, Octets}, _) ->
    {error, io_lib:format("encoded in ~b octets, the limit is ~b", [byte_size(Octets), ?LARGEST])};
round_trip(_, _, {error, Reason}, _) ->
    {error, ["does not encode: ", reason(Reason)]}.
