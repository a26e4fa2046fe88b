#ifndef COMPOSERTEST_H
#define COMPOSERTEST_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "support/CapturedOutput.h"
#include "support/HeapFault.h"
#include "support/Hex.h"

namespace test
{

// A context of its own per test, and the console lines that the composers print.
class ComposerTest : public testing::Test
{
protected:
    ComposerTest()
    {
        rtxInitContext(&context);
    }
    ~ComposerTest() override
    {
        rtFreeContext(&context);
    }

    // A cleared record or element; big ones stay off the stack.
    template <typename T>
    static std::unique_ptr<T> cleared()
    {
        return std::make_unique<T>();
    }

    // The lines printed since the last call; the line numbers of error lines become N:
    // "\033[1;31mrrcComposeX.N:pX is null\r\n\033[m".
    std::string printed();

    // The line of the null guard of `function` for `pointer`.
    static std::string nullLine(const std::string& function, const std::string& pointer)
    {
        return "\033[1;31m" + function + ".N:" + pointer + " is null\r\n\033[m";
    }

    // The node's element, 0-based; fails the test where the list is shorter.
    template <typename T>
    static const T& element(const OSRTDList& list, unsigned index)
    {
        const OSRTDListNode* node = list.head;
        for (; node != nullptr && index != 0; --index)
        {
            node = node->next;
        }
        if (node == nullptr)
        {
            ADD_FAILURE() << "the list has " << list.count << " elements";
            static const T none{};
            return none;
        }
        return *static_cast<const T*>(node->data);
    }

    // Octets of a named type's encoding, as hex; the error line where the encoder refuses it.
    template <typename T>
    std::string encode(int (*encodeType)(OSCTXT*, const T*), const T& value)
    {
        std::vector<OSOCTET> buffer(65536);
        rtxErrReset(&context);
        pu_setBuffer(&context, buffer.data(), buffer.size(), 0);
        if (encodeType(&context, &value) != 0)
        {
            char line[512];
            rtxErrFormat(&context, line, sizeof line);
            return line;
        }
        return hexDigits(buffer.data(), pu_getMsgLen(&context));
    }

    // Encodes the value and leaves it to the independent decoder, which runs over all such messages after the tests:
    // it has to read back exactly `json` (members in the schema's order, absent ones left out; CHOICE {"alternative":
    // value}; ENUMERATED and BIT STRING as strings; NULL null; no blanks).
    template <typename T>
    void expectDecoded(const char* type, int (*encodeType)(OSCTXT*, const T*), const T& value, const std::string& json)
    {
        const std::string octets = encode(encodeType, value);
        ASSERT_EQ(octets.find_first_not_of("0123456789abcdef"), std::string::npos) << octets;
        expectDecoded(type, octets, json);
    }

    // The same for an encoding, as hex.
    static void expectDecoded(const std::string& type, const std::string& octets, const std::string& json);

    OSCTXT context;

private:
    CapturedOutput output_;
};

} // namespace test

#endif
