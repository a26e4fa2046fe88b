%% The JSON library that asn1ct's JER back end calls; Debian has none. Only what the back end makes of our types.
-module(jsx).
-export([encode/1]).

encode(Term) ->
    iolist_to_binary(text(Term)).

text(Alternative) when is_map(Alternative) ->
    object(maps:to_list(Alternative));
text([{_, _} | _] = Members) ->
    object(Members);
text(Elements) when is_list(Elements) ->
    [$[, lists:join($,, [text(Element) || Element <- Elements]), $]];
text(Name) when is_binary(Name) ->
    [$", Name, $"];
text(Number) when is_integer(Number) ->
    integer_to_list(Number);
text(Word) when Word =:= true; Word =:= false; Word =:= null ->
    atom_to_list(Word);
text(Name) when is_atom(Name) ->
    [$", atom_to_list(Name), $"].

object(Members) ->
    [${, lists:join($,, [[text(Name), $:, text(Value)] || {Name, Value} <- Members]), $}].
