#include "input.h"
#include "form.h"
#include "nearest.h"
#include "octets.h"
#include "support/Hex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <random>

namespace
{

using tool::Form;
using tool::Input;
using tool::Refusal;
using Message = std::vector<std::uint8_t>;

std::string hexOf(const Message& octets)
{
    return test::hexDigits(octets.data(), octets.size());
}

// "<form> <octets in hex>", "<form> <text>", or "refused <message>".
std::string outcome(std::string_view raw, std::optional<Form> as = std::nullopt)
{
    const auto recognition = tool::recognise(raw, as);
    if (const auto* refusal = std::get_if<Refusal>(&recognition))
    {
        return "refused " + refusal->message();
    }
    const auto& input = std::get<Input>(recognition);
    return std::string(tool::formName(input.form)) + " " + hexOf(input.octets) + input.text;
}

std::string noteOf(std::string_view raw)
{
    const auto recognition = tool::recognise(raw);
    const auto* input = std::get_if<Input>(&recognition);
    return input != nullptr ? input->note : outcome(raw);
}

struct Sample
{
    std::string_view text;
    std::string_view outcome;
};

void expect(std::initializer_list<Sample> samples)
{
    for (const auto& sample : samples)
    {
        EXPECT_EQ(outcome(sample.text), sample.outcome) << sample.text;
    }
}

TEST(Input, hexInAllSpellings)
{
    expect({
        {"5ca00001", "hex 5ca00001"},
        {"5CA00001\n", "hex 5ca00001"},
        {"  5c A0 00 01  ", "hex 5ca00001"},
        {"5ca00001\n0203", "hex 5ca000010203"},
        {"5ca00\n00102\n03", "hex 5ca000010203"}, // wrapped by a terminal, within an octet
        {"5ca0 0001 02", "hex 5ca0000102"},
        {"5ca00001 02030405 06", "hex 5ca000010203040506"},
        {"5c:a0:00:01", "hex 5ca00001"},
        {"5c:a0:00:01:\n    02:03", "hex 5ca000010203"},
        {"5C-A0-00-01", "hex 5ca00001"},
        {"5c,a0,00,01", "hex 5ca00001"},
        {"5c, a0, 00, 01,", "hex 5ca00001"},
        {"0x5ca00001", "hex 5ca00001"},
        {"0X5CA00001", "hex 5ca00001"},
        {"0x5c 0xa0 0x00 0x01", "hex 5ca00001"},
        {"0x5c:0xa0", "hex 5ca0"},
        {"\\x5ca00001", "hex 5ca00001"}, // a database's literal
        {"'\\x5ca00001'", "hex 5ca00001"},
        {"\"5ca00001\"", "hex 5ca00001"},
        {"\"5CA00001\",", "hex 5ca00001"},
        {"'5CA00001'H", "hex 5ca00001"}, // X.680
        {"'5CA0 0001'O", "hex 5ca00001"},
        {"`5ca0`;", "hex 5ca0"},
        {"5c a0 00 01\r\n02 03\r\n", "hex 5ca000010203"},
        {"5c\ta0\t00\t01", "hex 5ca00001"},
        {"5c a0 00 01  02 03 04 05", "hex 5ca0000102030405"},
        {" 5c a0\n 00 01\n 02", "hex 5ca0000102"},
        {"5c\na0\n00", "hex 5ca000"},
        {"# typical call\n5ca0\n", "hex 5ca0"},
        {"00", "hex 00"},
        {"deadbeef", "hex deadbeef"}, // base64, too: hex wins
        {"12345678", "hex 12345678"},
        {"\xEF\xBB\xBF"
         "5ca0",
         "hex 5ca0"},
        {"5c\xC2\xA0"
         "a0\xE2\x80\x89"
         "00",
         "hex 5ca000"}, // blanks of a web page
        {"\xE2\x80\x9C"
         "5ca0\xE2\x80\x8B"
         "00\xE2\x80\x9D",
         "hex 5ca000"}, // quotes of a word processor, an invisible character
        {"\x1b[1;32m5ca0\x1b[0m", "hex 5ca0"},
    });
}

TEST(Input, hexThatLeavesAQuestion)
{
    expect({
        {"5ca00", "refused 1:1: 5 hex digits, an odd number: one is missing or too many"},
        {"\n  \"5ca00\"", "refused 2:4: 5 hex digits, an odd number: one is missing or too many"},
        {"5c a0 0 1", "refused 1:7: '0' is a single digit among pairs: an octet, or a digit is missing; say --as hex"},
        {"5ca 0001 1122", "refused 1:1: '5ca' has 3 hex digits, an odd number: one is missing, or it is no part of the "
                          "message; say --as log"},
        {"1714558801 5ca00011223344", "refused 1:12: '5ca00011223344' is not as long as the other groups: all groups "
                                      "are the message, or the longest run is; say --as hex or --as log"},
        {"5ca0 01 0203", "refused 1:6: '01' is not as long as the other groups: all groups are the message, or the "
                         "longest run is; say --as hex or --as log"},
        {"5ca00011\n5ca0001122\n", "refused 2:1: lines of different lengths (8 and 10 hex digits): several messages "
                                   "(--lines) or one; say --as hex"},
        {"5c a0 00\n5c\n5c a0 00\n", "refused 3:1: lines of different lengths (2 and 6 hex digits): several messages "
                                     "(--lines) or one; say --as hex"},
        {"deadBEEF", "refused 1:1: 8 hex digits of both cases or 8 base64 characters; say --as hex or --as base64"},
        {"61 62 20 63 64  ab cd", "refused 1:17: an ASCII column, to be cut off, or more octets; say --as hex"},
    });
    EXPECT_EQ(outcome("5c a0 0 1", Form::Hex), "hex 5ca00001");
    EXPECT_EQ(outcome("5ca00011\n5ca0001122\n", Form::Hex), "hex 5ca000115ca0001122");
    EXPECT_EQ(outcome("5ca0 01 0203", Form::Hex), "hex 5ca0010203");
    EXPECT_EQ(outcome("deadBEEF", Form::Hex), "hex deadbeef");
    EXPECT_EQ(outcome("deadBEEF", Form::Base64), "base64 75e69d04410"
                                                 "5");
    EXPECT_EQ(outcome("5ca0 010", Form::Hex), "refused 1:6: '010' has an odd number of hex digits");
    EXPECT_EQ(outcome("5ca0\nxy", Form::Hex), "refused 2:1: 'x' is not a hex digit");
    EXPECT_EQ(outcome("5c:a0 00", Form::Hex), "refused 1:6: another separator than before");
    EXPECT_EQ(outcome("5c\xC3\xA4", Form::Hex), "refused 1:3: a character outside ASCII is not a hex digit");
    EXPECT_EQ(outcome("\"\"", Form::Hex), "refused 1:2: '\"' is not a hex digit");
}

struct Dump
{
    const char* tool;
    const char* text;
};

// 5c a0, "ab cd-", 40 octets of zero, "61 62 63!", as the tools print them.
constexpr std::array<Dump, 16> dumps = {{
    {"xxd", "00000000: 5ca0 6162 2063 642d 0000 0000 0000 0000  \\.ab cd-........\n"
            "00000010: 0000 0000 0000 0000 0000 0000 0000 0000  ................\n"
            "00000020: 0000 0000 0000 0000 0000 0000 0000 0000  ................\n"
            "00000030: 3631 2036 3220 3633 21                   61 62 63!\n"},
    {"xxd -e", "00000000: 6261a05c 2d646320 00000000 00000000  \\.ab cd-........\n"
               "00000010: 00000000 00000000 00000000 00000000  ................\n"
               "00000020: 00000000 00000000 00000000 00000000  ................\n"
               "00000030: 36203136 33362032       21           61 62 63!\n"},
    {"xxd -g 1", "00000000: 5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00  \\.ab cd-........\n"
                 "00000010: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00  ................\n"
                 "00000020: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00  ................\n"
                 "00000030: 36 31 20 36 32 20 36 33 21                       61 62 63!\n"},
    {"xxd -c 8", "00000000: 5ca0 6162 2063 642d  \\.ab cd-\n"
                 "00000008: 0000 0000 0000 0000  ........\n"
                 "00000010: 0000 0000 0000 0000  ........\n"
                 "00000018: 0000 0000 0000 0000  ........\n"
                 "00000020: 0000 0000 0000 0000  ........\n"
                 "00000028: 0000 0000 0000 0000  ........\n"
                 "00000030: 3631 2036 3220 3633  61 62 63\n"
                 "00000038: 21                   !\n"},
    {"xxd -a", "00000000: 5ca0 6162 2063 642d 0000 0000 0000 0000  \\.ab cd-........\n"
               "00000010: 0000 0000 0000 0000 0000 0000 0000 0000  ................\n"
               "00000020: 0000 0000 0000 0000 0000 0000 0000 0000  ................\n"
               "00000030: 3631 2036 3220 3633 21                   61 62 63!\n"},
    {"xxd -u -g 4", "00000000: 5CA06162 2063642D 00000000 00000000  \\.ab cd-........\n"
                    "00000010: 00000000 00000000 00000000 00000000  ................\n"
                    "00000020: 00000000 00000000 00000000 00000000  ................\n"
                    "00000030: 36312036 32203633 21                 61 62 63!\n"},
    {"hexdump -C", "00000000  5c a0 61 62 20 63 64 2d  00 00 00 00 00 00 00 00  |\\.ab cd-........|\n"
                   "00000010  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
                   "*\n"
                   "00000030  36 31 20 36 32 20 36 33  21                       |61 62 63!|\n"
                   "00000039\n"},
    {"hexdump -v -C", "00000000  5c a0 61 62 20 63 64 2d  00 00 00 00 00 00 00 00  |\\.ab cd-........|\n"
                      "00000010  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
                      "00000020  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
                      "00000030  36 31 20 36 32 20 36 33  21                       |61 62 63!|\n"
                      "00000039\n"},
    {"hexdump", "0000000 a05c 6261 6320 2d64 0000 0000 0000 0000\n"
                "0000010 0000 0000 0000 0000 0000 0000 0000 0000\n"
                "*\n"
                "0000030 3136 3620 2032 3336 0021               \n"
                "0000039\n"},
    {"od -x", "0000000 a05c 6261 6320 2d64 0000 0000 0000 0000\n"
              "0000020 0000 0000 0000 0000 0000 0000 0000 0000\n"
              "*\n"
              "0000060 3136 3620 2032 3336 0021\n"
              "0000071\n"},
    {"od -t x1", "0000000 5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00\n"
                 "0000020 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                 "*\n"
                 "0000060 36 31 20 36 32 20 36 33 21\n"
                 "0000071\n"},
    {"od -A x -t x1z", "000000 5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00  >\\.ab cd-........<\n"
                       "000010 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00  >................<\n"
                       "*\n"
                       "000030 36 31 20 36 32 20 36 33 21                       >61 62 63!<\n"
                       "000039\n"},
    {"od -A d -t x1", "0000000 5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00\n"
                      "0000016 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                      "*\n"
                      "0000048 36 31 20 36 32 20 36 33 21\n"
                      "0000057\n"},
    {"od -t x4", "0000000 6261a05c 2d646320 00000000 00000000\n"
                 "0000020 00000000 00000000 00000000 00000000\n"
                 "*\n"
                 "0000060 36203136 33362032 00000021\n"
                 "0000071\n"},
    {"Wireshark, offset, hex and ASCII", "0000   5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00   \\.ab cd-........\n"
                                         "0010   00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00   ................\n"
                                         "0020   00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00   ................\n"
                                         "0030   36 31 20 36 32 20 36 33 21                        61 62 63!\n"},
    {"Wireshark, offset and hex", "0000   5c a0 61 62 20 63 64 2d 00 00 00 00 00 00 00 00\n"
                                  "0010   00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                                  "0020   00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                                  "0030   36 31 20 36 32 20 36 33 21\n"},
}};
constexpr std::string_view dumpedOctets = "5ca061622063642d000000000000000000000000000000000000000000000000000000000000"
                                          "00000000000000000000363120363220363321";

TEST(Input, dumpsOfTheTools)
{
    for (const auto& dump : dumps)
    {
        EXPECT_EQ(outcome(dump.text), "hexdump " + std::string(dumpedOctets)) << dump.tool;
        EXPECT_EQ(outcome(dump.text, Form::HexDump), "hexdump " + std::string(dumpedOctets)) << dump.tool;
    }
}

TEST(Input, dumpsInOtherLayouts)
{
    expect({
        {"0x0000:  5ca0 0001 6162 20  \\...ab \n", "hexdump 5ca00001616220"}, // tcpdump -X
        {"0000:  5c a0\n0002:  00 01\n", "hexdump 5ca00001"},
        {"00000000h: 5c a0 00 01 ; \\...", "hexdump 5ca00001"},
        {"0x7ffd5c20:\t0x5c\t0xa0\t0x00\t0x01\n0x7ffd5c24:\t0x02\n", "hexdump 5ca0000102"}, // a debugger
        {"0x7ffd5c20 <buffer+16>:\t0x5c\t0xa0\n0x7ffd5c22 <buffer+18>:\t0x02\n", "hexdump 5ca002"},
        {"0100  5c a0\n0102  00 01\n", "hexdump 5ca00001"}, // cut from a longer dump
        {"# frame 7\n0000  5c a0 00 01\n\n", "hexdump 5ca00001"},
        {"0000   5c a0 00 01 02 03 04 05-06 07\n", "hexdump 5ca00001020304050607"},
        {"0000   5c a0 61 62 63 64 65 66  67 68   \\.abcdef gh\n", "hexdump 5ca06162636465666768"},
        {"0000000 a05c 6261 0063\n0000005\n", "hexdump 5ca0616263"}, // an odd number of octets in words
        {"0000000 5c a0 00 01 02 03 04 05 06 07\n0000012\n", "hexdump 5ca00001020304050607"}, // od: octal
        {"Tx PDU\n    0000: 5c a0 00\n    0003: 01 02\nnext event\n", "hexdump 5ca0000102"},
        {"[1.2] rrc: 00000000: 5c a0 00 01  \\...\n[1.3] rrc: 00000004: 02 03  ..\n[1.4] rrc: done\n",
         "hexdump 5ca000010203"},
        // The ASCII column looks like hex.
        {"00000000: 6162 6364 6566 6768  abcdefgh\n00000008: 6162 2063 64         ab cd\n",
         "hexdump 61626364656667686162206364"},
        {"00000000: 6162 2063 64                             ab cd\n", "hexdump 6162206364"},
        {"00000000: 6162 6364  abcd\n00000004: 6566  ef\n", "hexdump 616263646566"},
        {"00000000  36 31 20 36 32 20 36 33                           |61 62 63|\n00000008\n",
         "hexdump 3631203632203633"},
        // Its blanks are cut off.
        {"00000000: 5ca0  \\.\n00000002: 2020\n", "hexdump 5ca02020"},
        // The octets were edited, the ASCII column was not.
        {"00000000: ffa0 6162  \\.ab\n00000004: ff         c\n", "hexdump ffa06162ff"},
    });
    EXPECT_EQ(noteOf("0000  5c a0\n0002  00 01\n"), "hex dump, 4 octets in 2 lines");
    EXPECT_EQ(noteOf("0100  5c a0\n0102  00 01\n"), "hex dump, 4 octets in 2 lines, from offset 0100 on");
    EXPECT_EQ(noteOf("0000000 a05c 6261\n0000004\n"), "hex dump, 4 octets in 1 line, words with the low octet first");
    EXPECT_EQ(noteOf("0000000 5c a0 00 01 02 03 04 05 06 07\n0000012\n"),
              "hex dump, 10 octets in 1 line, octal offsets");
    EXPECT_EQ(outcome("1234 5c a0", Form::HexDump), "hexdump 5ca0");
}

TEST(Input, dumpsThatAreBroken)
{
    expect({
        {"0000  5c a0\n0003  00\n", "refused 2:1: offset 0003 behind 2 octets at 0000: 0002 was expected, lines are "
                                    "missing or cut short"},
        {"0000  5c a0 00 01\n0002  00\n", "refused 2:1: offset 0002 behind 4 octets at 0000: 0004 was expected"},
        {"0000  00 01 02 03 04 05 06 07  08 09 0a 0b 0c 0d 0e 0f\n0008  00\n",
         "refused 2:1: offset 0008 behind 16 octets at 0000: 0010 was expected"},
        {"0000  5c a0\n0002  00 01\n0001  00\n", "refused 3:1: offset 0001 behind 0002: a step back"},
        {"0000  5c a0\n0002  00 01\n0000  00\n", "refused 3:1: offset 0000 behind 0002: a second dump; give one at a "
                                                 "time"},
        {"0000  5c a0\n*\n", "refused 2:1: '*' repeats a line up to the next offset, but none follows"},
        {"0000  5c a0\n*\n0005\n", "refused 3:1: offset 0005 is no whole number of repeated lines behind 0000"},
        {"00000000  5c a0\n*\n40000000\n", "refused 3:1: offset 40000000 is no whole number of repeated lines behind "
                                           "00000000"},
        {"0000  5c a0\n0002  5g a0\n", "refused 2:1: no line of the dump: an offset and octets in hex were expected"},
        {"Tx\n0000: 5c a0\n0003: 00 01\n", "refused 3:1: no line of the dump: an offset and octets in hex were "
                                           "expected"},
        {"0000000 a05c 0061\n", "refused 1:1: the offset behind the last line is missing: its last word may be one "
                                "octet or more"},
        {"0000000 120134 061141\n0000004\n", "refused 1:9: words in octal: dump the octets with 'od -tx1'"},
        {"0x7ffd5c20:\t0x0001a05c\n", "refused 1:15: words of a debugger, whose octets may be in any order: print "
                                      "octets (x/xb)"},
        {"0000: 5c a0  xy\n", "refused 1:1: the line's end is neither octets nor the ASCII column of its octets"},
        {"0000 5c", "refused 1:1: an offset and octets, or hex in groups; say --as hexdump or --as hex"},
        {"00000000: 5ca00001 02030405  ........\n",
         "refused 1:1: the line's end is neither octets nor the ASCII column of its octets"},
        {"00000000: 00a00001 02030405  ........\n", "refused 1:11: the octets of a word may be in either order (xxd -g "
                                                    "4 or xxd -e): dump single octets (xxd -g 1), "
                                                    "or if the first comes first; say --as hexdump"},
        {"0000: 36 31 20 36 32 20 36 33  61 62 63\n",
         "refused 1:1: the line's end may be octets or an ASCII column: cut it off"},
        {" 5c a0 00 01 02\n*\n 00 01\n", "refused 1:16: the hex is cut short here"},
    });
    EXPECT_EQ(outcome("5c a0", Form::HexDump), "refused 1:1: no line begins with an offset and octets in hex");
}

TEST(Input, cArrays)
{
    expect({
        {"const uint8_t x[] = { 0x5c, 0xa0, 0x00 };", "c-array 5ca000"},
        {"static const unsigned char pkt1[4] = {\n0x5c, 0xa0, /* \\. */\n0x00, 0x01  /* .. */\n};\n",
         "c-array 5ca00001"},
        {"/* Frame (4 bytes) */\nunsigned char x[4] = {0x5C,0XA0,0,255};", "c-array 5ca000ff"},
        {"uint8_t buf[8192] = { 0x5c, // first\n 0xa0, };", "c-array 5ca0"},
        {"unsigned char m_bin[] = {\n  0x5c, 0xa0\n};\nunsigned int m_bin_len = 2;\n", "c-array 5ca0"},
        {"  0x5c, 0xa0, 0x61,\n  0x00\n", "c-array 5ca06100"}, // xxd -i without a name
        {"  0x5c, 0xa0, 0x00, /* \\.. */\n  0x01 // end\n", "c-array 5ca00001"},
        {"byte[] x = new byte[] { (byte) 0x5c, (byte)0xa0, 0 };", "c-array 5ca000"},
        {"{ 0x5c, 0xa0 }", "c-array 5ca0"},
        {"{92, 160}", "c-array 5ca0"},
        {"bytes([0x5c, 0xa0])", "c-array 5ca0"},
        {"let x = vec![0x5cu, 0xa0];", "c-array 5ca0"},
        {"[2024-05-01 12:00:01] tx {0x5c, 0xa0, 0x00, 0x01, 0x02}", "c-array 5ca0000102"},
        {"x[] = { 0x5c, 0x1a0 };", "refused 1:15: '0x1a0' is more than one octet"},
        {"x[] = { 0x5c, 256 };", "refused 1:15: '256' is more than one octet"},
        {"x[] = { 0x5c, 010 };", "refused 1:15: '010' has a leading zero: octal in C, decimal elsewhere"},
        {"x[] = { 0x5c 0xa0 };", "refused 1:14: '0' in an array: ',' was expected"},
        {"x[] = { 0x5c, y };", "refused 1:15: 'y' in an array: a number up to 255 was expected"},
        {"x[] = { 0x5cg };", "refused 1:13: 'g' behind the number '0x5c'"},
        {"x[] =\n  { 0x5c, 0xa0,", "refused 2:3: nothing closes the '{': the end is missing"},
        {"x[] = { 0x5c };\ny[] = { 0xa0 };", "refused 2:7: a second array: give one at a time"},
        {"x[2] = { 0x5c, 0xa0, 0 };", "refused 1:3: an array of 2 with 3 elements"},
        {"x[] = { 0x5c };\nunsigned int x_len = 2;", "refused 2:22: the array has 1 octet, but its length is said to "
                                                     "be 2"},
        {"flags {0x01, 0x02} pdu 5ca00001020304", "refused 1:7: 2 octets here, but also a run of hex of 7 octets; say "
                                                  "--as c-array or --as log"},
    });
    EXPECT_EQ(outcome("flags {0x01, 0x02} pdu 5ca00001020304", Form::CArray), "c-array 0102");
    EXPECT_EQ(outcome("0x5c; 0xa0", Form::CArray), "c-array 5ca0");
    EXPECT_EQ(outcome("5ca0", Form::CArray), "refused 1:1: no list of numbers such as { 0x5c, 0xa0 }");
}

TEST(Input, escapedStrings)
{
    expect({
        {R"("\x5c\xa0\x00")", "escaped 5ca000"},
        {R"(\x5c\xa0\x00)", "escaped 5ca000"},
        {"\\x5c\\xa0\n\\x00", "escaped 5ca000"},
        {"\"\\x5c\\xa0\" \\\n\"\\x00\"", "escaped 5ca000"},
        {"const char x[] =\n    \"\\x5c\\xa0\"\n    \"ab\\0\";", "escaped 5ca0616200"},
        {R"(b'\x5c\xa0AB\n\'')", "escaped 5ca041420a27"}, // two digits, whatever follows
        {R"(b'\x5cab')", "escaped 5c6162"},
        {R"(x = b"\x5c" + b"\xa0")", "escaped 5ca0"},
        {R"("\x5c\134\a\b\t\v\f\r\"\\?")", "escaped 5c5c0708090b0c0d225c3f"},
        {R"("rrc": "\x5c\xa0\x00")", "escaped 5ca000"},
        {R"(can't decode \x5c\xa0\x00, sorry)", "escaped 5ca000"},
        {R"("\x5c\xa0)", "refused 1:1: nothing closes the quotes: the end is missing"},
        {R"("\x5c\q")", "refused 1:6: a backslash and 'q' is no escape of one octet"},
        {R"("\x5c\777")", "refused 1:6: the octal escape is more than one octet"},
        {R"("\\x5c")", "refused 1:2: the string is escaped twice: write \\x for \\\\x"},
        {"\"\\x5c\t\"", "refused 1:6: a tab in a string of octets"},
        {R"("\x5c", "\xa0")", "refused 1:10: a second string: give one at a time, in quotes if other characters "
                              "belong to it"},
        {"\"ab\"\n\"\\x5c\"", "refused 1:4: a string without \\x stands before the string: join them if it is a part"},
        {R"(\x5c\xa0AB)", "refused 1:9: other characters among the \\x..: put the string in quotes if they belong to "
                          "it"},
        {R"(\x1b\x1b pdu 5ca00001020304)", "refused 1:1: 2 octets here, but also a run of hex of 7 octets; say --as "
                                           "escaped or --as log"},
    });
    EXPECT_EQ(outcome("5ca0", Form::Escaped), "refused 1:1: no \\x.. is in the text");
}

TEST(Input, base64)
{
    expect({
        {"XKAAAQ==", "base64 5ca00001"},
        {"XKAAAQ==\n", "base64 5ca00001"},
        {"\"XKAAAQ==\",", "base64 5ca00001"},
        // RFC 4648: the alphabets differ in their last two characters.
        {"+/+/AAAAAAAAAAAAAAAAab==",
         "refused 1:1: neither hex, a dump, an array, base64, JER, a record, flat lines nor text "
         "with hex, unless it is a binary message that looks like text; say --as binary"},
        {"+/+/AAAAAAAAAAAAAAAAaQ==", "base64 fbffbf"
                                     "000000000000000000000000"
                                     "69"},
        {"-_-_AAAAAAAAAAAAAAAAaQ", "base64 fbffbf"
                                   "000000000000000000000000"
                                   "69"},
        {"XKAAAQIDBAUGBwgJCgsM\nDQ4PEA==", "base64 5ca00001"
                                           "02030405060708090a0b0c0d0e0f10"},
        {"XKAAAQIDBAUGBwgJCgsM\r\nDQ4PEA", "base64 5ca00001"
                                           "02030405060708090a0b0c0d0e0f10"},
        // Words are not.
        {"Config", "refused 1:1: a word, or 6 base64 characters; say --as base64"},
        {"CellGroupConfig1", "refused 1:1: a word, or 16 base64 characters; say --as base64"},
        {"XKAAAQIDBAUGBwgJCgsM\nXKAAAQIDBAUGBwgJCgsM1234\n",
         "refused 2:1: lines of different lengths: several messages (--lines) or one in base64; say --as base64"},
    });
    EXPECT_EQ(outcome("Conf", Form::Base64), "base64 0a89df");
    EXPECT_EQ(outcome("XKAAA", Form::Base64), "refused 1:1: 5 base64 characters are no whole number of octets");
    EXPECT_EQ(outcome("XKA=AAAA", Form::Base64), "refused 1:1: '=' is padding, but digits follow it");
    EXPECT_EQ(outcome("XKA==", Form::Base64), "refused 1:1: the padding does not fill up to a multiple of four");
    EXPECT_EQ(outcome("XKAAAR==", Form::Base64), "refused 1:1: the last character has bits that belong to no octet: "
                                                 "characters are missing or were changed");
    EXPECT_EQ(outcome("+_AA", Form::Base64), "refused 1:1: characters of the standard ('+', '/') and of the URL "
                                             "alphabet ('-', '_')");
    EXPECT_EQ(outcome("XKAA\nX A=", Form::Base64), "refused 2:2: ' ' is no base64 character");
}

TEST(Input, jerAndFlatLines)
{
    expect({
        {R"({"cellGroupId": 0})", R"(jer {"cellGroupId": 0})"},
        {"\n { }", "jer \n { }"},
        {"{cellGroupId: 0}", "jer {cellGroupId: 0}"}, // its reader says what is wrong
        {R"({"masterCellGroup": "5ca00001"})", R"(jer {"masterCellGroup": "5ca00001"})"},
        {R"([{"tag-Id": 0}])", R"(jer [{"tag-Id": 0}])"},
        {"\xEF\xBB\xBF{\"a\": \"\xC3\xA4\"}\r\n", "jer {\"a\": \"\xC3\xA4\"}\n"},
        {"// a call\n{\"a\": 0}", "jer // a call\n{\"a\": 0}"},
        {"/* a call */ { // of\n /* cell 7 */ \"a\": 0}", "jer /* a call */ { // of\n /* cell 7 */ \"a\": 0}"},
        {"[ // all\n{\"a\": 0}]", "jer [ // all\n{\"a\": 0}]"},
        {"// a call\n{ /* 5 */ 0x5c, 0xa0}", "c-array 5ca0"},
        {"CellGroupConfig.cellGroupId = 0\n", "flat CellGroupConfig.cellGroupId = 0\n"},
        {"# a call\nRLC-BearerConfig.x[0].y = 5ca0\nz", "flat # a call\nRLC-BearerConfig.x[0].y = 5ca0\nz"},
        {"{5c a0 00 11}", "log 5ca00011"},
        {"Payload = 5ca00011", "log 5ca00011"},
    });
    EXPECT_EQ(noteOf("{\n}\n"), "JER, 2 lines");
    EXPECT_EQ(noteOf("A.b = 1"), "flat lines, 1 line");
    EXPECT_EQ(outcome("[1, 2]", Form::Jer), "jer [1, 2]");
    EXPECT_EQ(outcome("a = 1", Form::Flat), "flat a = 1");
}

TEST(Input, logLines)
{
    expect({
        {"[2024-05-01 12:00:01.123] [RRC] DL-DCCH cellGroupConfig: 5c a0 00 01 02 03", "log 5ca000010203"},
        {"cellGroupConfig: 5ca0000102,", "log 5ca0000102"},
        {"\"masterCellGroup\": \"5CA00001020304\",", "log 5ca00001020304"},
        {"    \"masterCellGroup\": \"5CA00001020304\"\n", "log 5ca00001020304"},
        {"2024-05-01T12:00:01.123456Z gnb[123]: masterCellGroup=5ca0000102030405 len=8", "log 5ca0000102030405"},
        {"2024-05-01T12:00:01Z 5ca00001", "log 5ca00001"},
        {"May  1 12:00:01 host rrc[4711]: ptr 0x7ffe12345678 pdu 5ca00001 (4 bytes)", "log 5ca00001"},
        {"12:00:01.123456 rnti=0x4601 5ca00001", "log 5ca00001"},
        {"12:00:01,123 DEBUG 5ca00001", "log 5ca00001"},
        {"12:00:01,5ca00001020",
         "refused 1:1: neither hex, a dump, an array, base64, JER, a record, flat lines nor text with "
         "hex, unless it is a binary message that looks like text; say --as binary"},
        {"12:00:01,5ca000010203", "log 5ca000010203"}, // a table's field, not the time's fraction
        {"12:00:01 5c a0 00 01", "log 5ca00001"},
        {"550e8400-e29b-41d4-a716-446655440000 5ca00001", "log 5ca00001"},
        {"from 192.168.10.20:38472 pdu 5ca0000102", "log 5ca0000102"},
        {"took 1.5 ms, 12.34567890 s: 5ca00001", "log 5ca00001"},
        {"cell 0001 5c a0 00 11 22 33", "log 5ca000112233"},
        {"pdu 12, 5c a0 00 11 22 33", "log 5ca000112233"},
        {"ue 1 5c a0 00 11", "log 5ca00011"},
        {"len 440 5c a0 00 11", "log 5ca00011"},
        {"feedback decade 5c a0 00 11 22 33 44", "log 5ca00011223344"},
        {"<octets>5CA0001122</octets>", "log 5ca0001122"},
        {"v1 CellGroupConfig ::= '5CA00001'H", "log 5ca00001"},
        {"payload: 0x5c 0xa0 0x00 0x01", "log 5ca00001"},
        {"payload: 0x5c,0xa0,0x00,0x01.", "log 5ca00001"},
        {"payload: 0x5ca0000102030405ff", "log 5ca0000102030405ff"},
        {"payload 5c:a0:00:01:02:03 end", "log 5ca000010203"},
        {"payload 5c-a0-00-01-02-03 end", "log 5ca000010203"},
        {"payload [5ca0 0001 02]", "log 5ca0000102"},
        {"pdu:\n  5c a0 00 01\n  02 03 04\nend 1", "log 5ca00001020304"},
        {"pdu: 5ca0000102030405060708090a0b0c0d0e0f1\n01112\nend", "log 5ca0000102030405060708090a0b0c0d0e0f101112"},
        {"\xE2\x80\x98"
         "5ca00001\xE2\x80\x99 \xC3\xA4",
         "log 5ca00001"},
        // What leaves a question.
        {"pdu 5ca0", "refused 1:5: the longest run of hex has only 2 octets; say --as log"},
        {"pdu 5ca0000102, old 5ca00001",
         "refused 1:5: two runs of hex may be the message: 5 octets at 1:5 and 4 octets at 1:21; cut off the other, or "
         "give one message per line with --lines"},
        {"pdu: 5ca00001020304...", "refused 1:20: the hex is cut short here"},
        {"pdu: \"5ca00001020304\xE2\x80\xA6\"", "refused 1:21: the hex is cut short here"},
        {"pdu: \"5ca00001020304\" [truncated]", "refused 1:21: the hex is cut short here"},
        {"hello world",
         "refused 1:1: neither hex, a dump, an array, base64, JER, a record, flat lines nor text with hex, unless "
         "it is a binary message that looks like text; say --as binary"},
    });
    EXPECT_EQ(noteOf("x\ny: 5c a0 00 01"), "hex run of 4 octets at column 4 of line 2");
    EXPECT_EQ(outcome("pdu 5ca0", Form::LogLine), "log 5ca0");
    EXPECT_EQ(outcome("pdu 5c", Form::LogLine), "refused 1:5: the longest run of hex has only 1 octet");
    EXPECT_EQ(outcome("pdu", Form::LogLine), "refused 1:1: no run of hex is in the text");
}

TEST(Input, binaryOrText)
{
    using namespace std::string_view_literals;
    expect({
        {"\x5c\xa0\x00\x01"sv, "binary 5ca00001"},
        {"\x01"sv, "binary 01"},
        {"\xff\xfe"
         "5"sv,
         "binary fffe35"}, // no UTF-16: an odd number of octets
        {"\xff\xfe\x01\x02\x00\xd8"sv, "binary fffe010200d8"},
        {"\xff\xfe"
         "5\0c\0a\0"
         "0\0\r\0\n\0"sv,
         "hex 5ca0"},
        {"\xfe\xff\0005\0c\0a\0000"sv, "hex 5ca0"},
        {"\xff\xfe{\0\x3d\xd8\x00\xde}\0"sv, "jer {\xF0\x9F\x98\x80}"},
        {"5\0c\0a\0"
         "0\0"sv,
         "refused UTF-16 text without byte order mark, to be converted to UTF-8, or binary; say --as binary"},
        {"[12:00] UE f\xfcr Test: 5ca000010203040506",
         "refused 1:13: a control character or an octet that is not UTF-8 "
         "in what is text otherwise; say --as log or --as binary"},
        {"", "refused the input is empty"},
        {" \r\n\t", "refused the input has only blanks and comments"},
        {"# nothing\n", "refused the input has only blanks and comments"},
        {"\\@", "refused 1:1: neither hex, a dump, an array, base64, JER, a record, flat lines nor text with hex, "
                "unless it is a "
                "binary message that looks like text; say --as binary"},
    });
    EXPECT_EQ(noteOf("\x5c\xa0\x01"), "binary, 3 octets");
    EXPECT_EQ(outcome("5ca0", Form::Binary), "binary 35636130");
    EXPECT_EQ(outcome("UE f\xfcr Test: 5ca000010203040506", Form::LogLine), "log 5ca000010203040506");
    EXPECT_EQ(outcome("", Form::Binary), "refused the input is empty");
    EXPECT_EQ(outcome(" ", Form::Hex), "refused the input has only blanks and comments");
    // Overlong forms, surrogates and what is beyond U+10FFFF are no UTF-8.
    for (const auto* octets : {"{\xC0\x80}", "{\xED\xA0\x80}", "{\xF4\x90\x80\x80}", "{\xE2\x82}", "{\xF8}", "{\x80}"})
    {
        EXPECT_THAT(outcome(octets), testing::StartsWith("binary 7b")) << octets;
    }
}

TEST(Input, tooLongIsRefused)
{
    const std::string longest(tool::maxInputOctets, '\x01');
    const auto recognition = tool::recognise(longest);
    ASSERT_TRUE(std::holds_alternative<Input>(recognition));
    EXPECT_EQ(std::get<Input>(recognition).octets.size(), tool::maxInputOctets);
    EXPECT_EQ(outcome(longest + '\x01'), "refused the input has more than 67108864 octets");
    EXPECT_EQ(outcome("00000000  00\n*\n04000001\n"),
              "refused 3:1: offset 04000001 is no whole number of repeated lines behind 00000000");
}

std::string linesOf(std::string_view raw)
{
    auto lines = tool::MessageLines::of(raw);
    if (const auto* refusal = std::get_if<Refusal>(&lines))
    {
        return "refused " + refusal->message();
    }
    std::string text;
    while (const auto line = std::get<tool::MessageLines>(lines).next())
    {
        text += std::to_string(line->number) + ":" + std::string(line->text) + "|";
    }
    return text;
}

TEST(MessageLines, countsAllLines)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(linesOf("5ca0\n\n# old\n  5ca1 \r\nlast"), "1:5ca0|4:  5ca1 |5:last|");
    EXPECT_EQ(linesOf("\xff\xfe"
                      "5\0\n\0"
                      "6\0"sv),
              "1:5|2:6|");
    EXPECT_EQ(linesOf(""), "");
    EXPECT_EQ(linesOf("5ca0\n\x01"), "refused 2:1: a control character or an octet that is not UTF-8: lines are text");
}

TEST(Form, namesAndTypos)
{
    for (const auto* name : {"binary", "hex", "hexdump", "c-array", "escaped", "base64", "jer", "flat", "log"})
    {
        const auto form = tool::formNamed(name);
        ASSERT_TRUE(form) << name;
        EXPECT_EQ(tool::formName(*form), name);
    }
    EXPECT_FALSE(tool::formNamed("Hex"));
    EXPECT_EQ(tool::unknownForm("hexx"), "unknown form 'hexx': did you mean 'hex'?");
    EXPECT_EQ(tool::unknownForm("carray"), "unknown form 'carray': did you mean 'c-array'?");
    EXPECT_EQ(tool::unknownForm("BASE46"), "unknown form 'BASE46': did you mean 'base64'?");
    EXPECT_EQ(tool::unknownForm("pcap"), "unknown form 'pcap': the forms are binary, hex, hexdump, c-array, escaped, "
                                         "base64, jer, record, flat, log");
    EXPECT_FALSE(text::nearest("", {}));
}

TEST(Octets, writers)
{
    const Message octets = {0x5c, 0xa0, 0x0f};
    EXPECT_EQ(tool::toHex(octets), "5ca00f");
    EXPECT_EQ(tool::toHex(octets, tool::Case::Upper), "5CA00F");
    EXPECT_EQ(tool::toCArray(octets, "message"), "const uint8_t message[] = {\n    0x5c, 0xa0, 0x0f,\n};\n");
    EXPECT_EQ(tool::toCArray(Message(13), "x"), "const uint8_t x[] = {\n    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, "
                                                "0x00, 0x00, 0x00, 0x00, 0x00,\n    0x00,\n};\n");
    // RFC 4648 section 10.
    const auto base64 = [](std::string_view text)
    {
        return tool::toBase64(Message(text.begin(), text.end()));
    };
    EXPECT_EQ(base64(""), "");
    EXPECT_EQ(base64("f"), "Zg==");
    EXPECT_EQ(base64("fo"), "Zm8=");
    EXPECT_EQ(base64("foo"), "Zm9v");
    EXPECT_EQ(base64("foob"), "Zm9vYg==");
    EXPECT_EQ(base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
}

// Layouts of the tools, as the samples above show them.
std::string number(std::size_t value, int width, const char* format)
{
    std::array<char, 32> text{};
    (void)std::snprintf(text.data(), text.size(), format, width, value);
    return text.data();
}

struct Layout
{
    const char* name;
    const char* offset; // printf's format of the width and the offset
    int width;          // of the offset
    const char* behind; // the offset
    std::size_t perLine;
    std::size_t group; // octets of a group
    bool lowFirst;
    bool half;          // two blanks in the middle
    const char* column; // what opens the ASCII column, nullptr when there is none
    const char* close;
    bool end;    // the offset of the end
    bool repeat; // '*'
};

constexpr std::array<Layout, 10> layouts = {{
    {"xxd", "%0*zx", 8, ": ", 16, 2, false, false, "  ", "", false, false},
    {"xxd -c 8", "%0*zx", 8, ": ", 8, 2, false, false, "  ", "", false, false},
    {"xxd -e", "%0*zx", 8, ": ", 16, 4, true, false, "  ", "", false, false},
    {"xxd -a -g 1", "%0*zx", 8, ": ", 16, 1, false, false, "  ", "", false, false},
    {"hexdump -C", "%0*zx", 8, "  ", 16, 1, false, true, "  |", "|", true, true},
    {"hexdump", "%0*zx", 7, " ", 16, 2, true, false, nullptr, "", true, true},
    {"od -t x1", "%0*zo", 7, " ", 16, 1, false, false, nullptr, "", true, true},
    {"od -A d -t x1z", "%0*zu", 7, " ", 16, 1, false, false, "  >", "<", true, true},
    {"Wireshark with ASCII", "%0*zx", 4, "   ", 16, 1, false, true, "   ", "", false, false},
    {"Wireshark", "%0*zx", 4, "   ", 16, 1, false, false, nullptr, "", false, false},
}};

std::string dumpOf(const Message& octets, const Layout& layout)
{
    std::string text;
    std::string previous;
    bool repeated = false;
    for (std::size_t at = 0; at < octets.size(); at += layout.perLine)
    {
        const std::size_t count = std::min(layout.perLine, octets.size() - at);
        std::string hex;
        for (std::size_t i = 0; i < layout.perLine; i += layout.group)
        {
            hex += i == 0 ? "" : layout.half && i == layout.perLine / 2 ? "  " : " ";
            for (std::size_t k = 0; k < layout.group; ++k)
            {
                const std::size_t from = i + (layout.lowFirst ? layout.group - 1 - k : k);
                const bool filled = layout.lowFirst && layout.column == nullptr && i < count; // hexdump's last word
                hex += from < count ? hexOf({octets[at + from]}) : filled ? "00" : "  ";
            }
        }
        std::string line = layout.behind + hex;
        if (layout.column != nullptr)
        {
            line += layout.column;
            for (std::size_t i = at; i < at + count; ++i)
            {
                line += octets[i] >= ' ' && octets[i] <= '~' ? static_cast<char>(octets[i]) : '.';
            }
            line += layout.close;
        }
        const bool same = layout.repeat && at != 0 && count == layout.perLine && line == previous;
        if (!same)
        {
            text += number(at, layout.width, layout.offset) + line + "\n";
        }
        else if (!repeated)
        {
            text += "*\n";
        }
        repeated = same;
        previous = line;
    }
    return layout.end ? text + number(octets.size(), layout.width, layout.offset) + "\n" : text;
}

std::string wrapped(std::string_view text, std::size_t width)
{
    std::string lines;
    for (std::size_t i = 0; i < text.size(); i += width)
    {
        lines += std::string(text.substr(i, width)) + "\n";
    }
    return lines;
}

std::string joined(const Message& octets, std::string_view before, std::string_view between)
{
    std::string text;
    for (const auto octet : octets)
    {
        text += (text.empty() ? "" : std::string(between)) + std::string(before) + hexOf({octet});
    }
    return text;
}

// Of all lengths from 1 to 600; some with runs of zero, some of printable octets, whose ASCII columns look like hex.
Message randomMessage(std::mt19937& random, std::size_t round)
{
    Message octets(round % 600 + 1);
    const std::string_view hexLike = "abcdef0123456789    ";
    for (auto& octet : octets)
    {
        const auto chance = random();
        octet = static_cast<std::uint8_t>(round % 3 == 0 ? static_cast<unsigned char>(hexLike[chance % hexLike.size()])
                                                         : chance >> 8 & 0xFF);
    }
    if (round % 5 == 0 && octets.size() > 100)
    {
        std::fill(octets.begin() + 20, octets.end() - 10, std::uint8_t{0});
    }
    return octets;
}

TEST(Input, whatIsWrittenIsRecognised)
{
    std::mt19937 random(20);
    std::size_t asked = 0;
    for (std::size_t round = 0; round < 1000; ++round)
    {
        const Message octets = randomMessage(random, round);
        const std::string content = " " + hexOf(octets);
        EXPECT_EQ(outcome(tool::toHex(octets)), "hex" + content);
        EXPECT_EQ(outcome(tool::toHex(octets, tool::Case::Upper)), "hex" + content);
        EXPECT_EQ(outcome(wrapped(tool::toHex(octets), 60)), "hex" + content);
        EXPECT_EQ(outcome(wrapped(tool::toHex(octets), 79)), "hex" + content);
        EXPECT_EQ(outcome(joined(octets, "", " ")), "hex" + content);
        EXPECT_EQ(outcome(wrapped(joined(octets, "", " "), 48)), "hex" + content);
        EXPECT_EQ(outcome(joined(octets, "", ":")), "hex" + content);
        EXPECT_EQ(outcome(joined(octets, "0x", " ")), "hex" + content);
        EXPECT_EQ(outcome(joined(octets, "0x", ", ") + ","), "c-array" + content);
        EXPECT_EQ(outcome(joined(octets, "0x", ",\n") + ","), "c-array" + content);
        EXPECT_EQ(outcome(tool::toCArray(octets, "message")), "c-array" + content);
        EXPECT_EQ(outcome("\"" + joined(octets, "\\x", "") + "\""), "escaped" + content);
        EXPECT_EQ(outcome(wrapped(joined(octets, "\\x", ""), 64)), "escaped" + content);
        if (octets.size() > 8) // up to 16 decimal digits are a number
        {
            EXPECT_EQ(outcome("[2024-05-01 12:00:01.123] [RRC] pdu: " + joined(octets, "", " ")), "log" + content);
            EXPECT_EQ(outcome("\"masterCellGroup\": \"" + tool::toHex(octets) + "\","), "log" + content);
        }
        for (const auto& layout : layouts)
        {
            const auto text = dumpOf(octets, layout);
            const auto result = outcome(text);
            if (layout.group > 2 && result.starts_with("refused"))
            {
                // No printable octet tells the order of those of a word.
                EXPECT_THAT(result, testing::HasSubstr("in either order"));
                EXPECT_LT(octets.size(), 12U) << text;
                continue;
            }
            EXPECT_EQ(result, "hexdump" + content) << layout.name << '\n' << text;
        }

        // Short base64 may be a word, or hex.
        const auto base64 = tool::toBase64(octets);
        EXPECT_EQ(outcome(base64, Form::Base64), "base64" + content);
        EXPECT_EQ(outcome(wrapped(base64, 64), Form::Base64), "base64" + content);
        const auto guessed = outcome(base64);
        if (guessed != "base64" + content)
        {
            ++asked;
            EXPECT_THAT(guessed, testing::AllOf(testing::StartsWith("refused "), testing::HasSubstr("--as base64")));
            EXPECT_LT(octets.size(), 20U) << base64;
        }
    }
    EXPECT_LT(asked, 20U);
}

TEST(Input, aMegabyteTakesNoTime)
{
    Message octets(std::size_t{1} << 20);
    std::mt19937 random(1);
    for (auto& octet : octets)
    {
        octet = static_cast<std::uint8_t>(random() & 0xFF);
    }
    const auto hex = tool::toHex(octets).substr(0, octets.size());
    std::vector<std::string> texts = {hex,
                                      "pdu: " + hex,
                                      wrapped(hex, 1),
                                      wrapped(hex, 32),
                                      tool::toBase64(octets).substr(0, octets.size()),
                                      tool::toCArray(octets, "x").substr(0, octets.size()) + "};",
                                      joined(octets, "\\x", "").substr(0, octets.size()),
                                      dumpOf(octets, layouts[0]).substr(0, octets.size())};
    // What makes a careless reader look back or ahead again and again.
    for (const char* part : {"{",
                             "[0",
                             "{/*",
                             "{(a ",
                             "\"",
                             "'",
                             "\\x",
                             "\\x5",
                             "\\x5c ",
                             "0x",
                             "0000 ",
                             "0000  00\n*\n",
                             "0000: 00\t00\t",
                             "ab ",
                             "ab  ",
                             "ab, ",
                             "ab,cd ",
                             "ab:",
                             "12:00 ",
                             "dead-",
                             "abcd ab ",
                             "\n",
                             " ",
                             "\xC3\xA4",
                             "\x1b[1",
                             "A.b = ",
                             "=",
                             "0000000000000000",
                             "ab\n",
                             "#\n",
                             "*\n",
                             "..."})
    {
        std::string text;
        while (text.size() < octets.size() / 4)
        {
            text += part;
        }
        texts.push_back(text);
        texts.push_back("x " + text);
    }
    for (const auto& text : texts)
    {
        const auto start = std::chrono::steady_clock::now();
        (void)tool::recognise(text);
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        // 50 in a release build on an idle machine; far more for a reader whose time is not linear.
        EXPECT_LT(time.count(), 5000) << text.substr(0, 20);
    }
}

} // namespace
