"""The checks of check_names.py fail when they should."""

import unittest

import check_names

COMPOSE_H = r"""
#define NULL_CHECK(p)                                                                                                  \
    do                                                                                                                 \
    {                                                                                                                  \
        vos_err_print(#p " is null\r\n");                                                                              \
    } while (0)

template <typename Record, std::size_t N>
INT32 list(OSRTDList* pList, Record (&records)[N], const char* text)
{
    VOS_Printf("%s", text);
    return VOS_ERROR;
}
"""
A_CPP = r"""
#include "compose.h"

namespace
{

constexpr char separator = '"';
const unsigned bounds[] = {1, 2'000};

struct Pair
{
    int first;
};

// Prints "a comment".
INT32 notice(int value)
{
    VOS_Printf("No alternative\n");
    return value;
}

} // namespace

INT32 rrcComposeFirst(OSCTXT* pAsnCxt,
                      const First* pFirst, RrcFirst_t* pRrcFirst)
{
    NULL_CHECK(pFirst);
    NULL_CHECK(pRrcFirst->choice);

    RETURN_IF_FAILED(rrcComposeSecond(pFirst), "rrcComposeSecond Error\r\n");
    return list(pFirst, pRrcFirst->list,
                "pNode Or pItem "
                "is NULL\r\n");
}

INT32 rrcComposeSecond(Second* pSecond)
{
    return notice(pSecond->t); /* "another comment" */
}
"""
A_H = """
INT32 rrcComposeFirst(OSCTXT* pAsnCxt, const First* pFirst,
                      RrcFirst_t* pRrcFirst);
INT32 rrcComposeSecond(Second* pSecond);
"""
FUNCTIONS = ["rrcComposeFirst", "rrcComposeSecond"]
TEXTS = [
    ("rrcComposeFirst", r"pFirst is null\r\n"),
    ("rrcComposeFirst", r"pRrcFirst->choice is null\r\n"),
    ("rrcComposeFirst", r"rrcComposeSecond Error\r\n"),
    ("rrcComposeFirst", r"pNode Or pItem is NULL\r\n"),
    ("rrcComposeSecond", r"No alternative\n"),
]


def sources(old="", new="", **more):
    assert not old or A_CPP.count(old) == 1, old
    return check_names.Sources({"compose.h": COMPOSE_H, "a.h": A_H, "a.cpp": A_CPP.replace(old, new), **more})


class Functions(unittest.TestCase):
    def expect(self, complaint, listed=(), **changes):
        complaints = sources(**changes).check_functions([*FUNCTIONS, *listed])
        self.assertEqual(len(complaints), 1 if complaint else 0, complaints)
        self.assertIn(complaint, "".join(complaints))

    def test_all_there(self):
        self.expect("")

    def test_missing(self):
        self.expect("rrcComposeSecond is defined 0 times", old="INT32 rrcComposeSecond(", new="INT32 rrcComposeSecund(")

    def test_listed_and_nowhere(self):
        self.expect("rrcComposeThird is defined 0 times", listed=["rrcComposeThird"])

    def test_called_only(self):
        self.expect("list2 is defined 0 times", listed=["list2"], old="return list(", new="return list2(")

    def test_twice(self):
        self.expect("rrcComposeSecond is defined 2 times, not once, a.cpp, b.cpp",
                    **{"b.cpp": "INT32 rrcComposeSecond(Second* pSecond)\n{\n}\n"})

    def test_in_a_comment(self):
        self.expect("rrcComposeSecond is defined 0 times",
                    old="INT32 rrcComposeSecond(Second* pSecond)\n{",
                    new="// INT32 rrcComposeSecond(Second* pSecond)\n{")

    def test_return_type_on_the_line_before(self):
        self.expect("the line that defines rrcComposeSecond does not begin with its return type",
                    old="INT32 rrcComposeSecond(", new="INT32\nrrcComposeSecond(")

    def test_listed_twice(self):
        self.expect("rrcComposeFirst is listed twice", listed=["rrcComposeFirst"])


class Texts(unittest.TestCase):
    def expect(self, *expected, listed=None, **changes):
        complaints = sources(**changes).check_texts(TEXTS if listed is None else listed, FUNCTIONS)
        self.assertEqual(len(complaints), len(expected), complaints)
        for complaint in expected:
            self.assertIn(complaint, "\n".join(complaints))

    def test_all_there(self):
        self.expect()

    def test_changed(self):
        self.expect(r'rrcComposeFirst does not print "rrcComposeSecond Error\r\n"',
                    r'rrcComposeFirst prints "rrcComposeSecond Error\n", which is not listed',
                    old=r"Second Error\r\n", new=r"Second Error\n")

    def test_changed_in_its_second_half(self):
        self.expect(r'rrcComposeFirst does not print "pNode Or pItem is NULL\r\n"',
                    r'rrcComposeFirst prints "pNode Or pItem is null\r\n", which is not listed',
                    old=r'"is NULL\r\n"', new=r'"is null\r\n"')

    def test_changed_in_a_helper(self):
        self.expect(r'rrcComposeSecond does not print "No alternative\n"',
                    r'rrcComposeSecond prints "No alternatives\n", which is not listed',
                    old="No alternative", new="No alternatives")

    def test_helper_that_nobody_calls(self):
        self.expect(r'rrcComposeSecond does not print "No alternative\n"',
                    r'a.cpp: notice prints "No alternative\n", but is not listed',
                    old="notice(pSecond->t)", new="0")

    def test_helper_of_another_source(self):
        self.expect(r'rrcComposeSecond does not print "No alternative\n"',
                    r'b.cpp: notice2 prints "No alternative\n", but is not listed',
                    r'a.cpp: notice prints "No alternative\n", but is not listed',
                    old="notice(pSecond->t)", new="notice2(pSecond->t)",
                    **{"b.cpp": 'INT32 notice2(int)\n{\n    VOS_Printf("No alternative\\n");\n}\n'})

    def test_printed_by_another_function(self):
        self.expect(r'rrcComposeFirst prints "No alternative\n", which is not listed',
                    old="return list(pFirst", new="return notice(1) + list(pFirst")

    def test_commented_out(self):
        self.expect(r'rrcComposeFirst does not print "rrcComposeSecond Error\r\n"',
                    old=r'"rrcComposeSecond Error\r\n"', new=r'/* "rrcComposeSecond Error\r\n" */ nullptr')

    def test_not_listed(self):
        for i, (name, text) in enumerate(TEXTS[2:], 2):
            self.expect(f'{name} prints "{text}", which is not listed', listed=TEXTS[:i] + TEXTS[i + 1:])

    def test_stale(self):
        self.expect('rrcComposeSecond does not print "gone"', listed=[*TEXTS, ("rrcComposeSecond", "gone")])

    def test_of_a_function_that_is_gone(self):
        self.expect('rrcComposeThird does not print "gone"', listed=[*TEXTS, ("rrcComposeThird", "gone")])

    def test_listed_twice(self):
        self.expect("is listed twice", listed=[*TEXTS, TEXTS[-1]])

    def test_outside_of_functions(self):
        self.expect('a.cpp: "lost" stands outside of all functions',
                    old="constexpr char separator = '\"';", new='constexpr char* text = "lost";')

    def test_guard_missing(self):
        self.expect("rrcComposeFirst: its null guards are", old="    NULL_CHECK(pFirst);\n", new="")

    def test_guard_of_another_name(self):
        self.expect("rrcComposeFirst: its null guards are", old="NULL_CHECK(pFirst)", new="NULL_CHECK(pAsnCxt)")

    def test_guards_in_another_order(self):
        self.expect("rrcComposeFirst: its null guards are",
                    old="    NULL_CHECK(pFirst);\n    NULL_CHECK(pRrcFirst->choice);",
                    new="    NULL_CHECK(pRrcFirst->choice);\n    NULL_CHECK(pFirst);")

    def test_guard_not_listed(self):
        self.expect("rrcComposeSecond: its null guards are ['pSecond", old="    return notice",
                    new="    NULL_CHECK(pSecond);\n    return notice")

    def test_guard_in_a_helper(self):
        self.expect("a.cpp: notice guards value",
                    old="    return value;", new="    NULL_CHECK(value);\n    return value;")

    def test_guard_as_a_plain_text(self):
        self.expect("rrcComposeFirst: its null guards are",
                    r'rrcComposeFirst prints "pFirst is null\r\n", which is not listed',
                    old="NULL_CHECK(pFirst)", new=r'VOS_Printf("pFirst is null\r\n")')

    def test_guard_with_other_words(self):
        self.expect("NULL_CHECK(p) does not print", **{"compose.h": COMPOSE_H.replace("is null", "is NULL")})


if __name__ == "__main__":
    unittest.main()
