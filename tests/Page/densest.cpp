// densest PRICE: prints, in JER, a cell group whose page takes as many octets as possible: every choice, list and
// optional member is taken when the octets that it adds to the page are worth more than its bits at PRICE octets each.
// The lower the price, the longer the message; extension additions are left out.
#include "NR-RRC-Definitions.h"
#include "rtxType.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace
{

class Densest
{
public:
    explicit Densest(double price) : price_(price) {}

    std::string text(const rtx::Type& type)
    {
        switch (type.kind)
        {
        case rtx::Kind::Sequence:
        {
            std::string all;
            for (unsigned i = 0; i < type.rootCount; ++i)
            {
                if (isTaken(type, i))
                {
                    all += (all.empty() ? "" : ",") + member(type, i);
                }
            }
            return "{" + all + "}";
        }
        case rtx::Kind::Choice:
            return "{" + member(type, bestAlternative(type)) + "}";
        case rtx::Kind::Array:
        case rtx::Kind::List:
        {
            const std::string element = text(type.element());
            std::string all;
            for (int i = 0; i < bestCount(type); ++i)
            {
                all += (all.empty() ? "" : ",") + element;
            }
            return "[" + all + "]";
        }
        default:
            return literal(type);
        }
    }

private:
    std::string member(const rtx::Type& type, unsigned i)
    {
        return "\"" + std::string(type.names[i]) + "\":" + text(*type.members[i].type);
    }

    static std::string literal(const rtx::Type& type)
    {
        switch (type.kind)
        {
        case rtx::Kind::Boolean:
            return "false";
        case rtx::Kind::Null:
            return "null";
        case rtx::Kind::Integer:
            return std::to_string(type.upper);
        case rtx::Kind::Enumerated:
        {
            std::string longest;
            for (int i = 0; i <= type.upper; ++i)
            {
                const std::string name = type.names[i];
                longest = name.size() > longest.size() ? name : longest;
            }
            return "\"" + longest + "\"";
        }
        default:
            return "\"" + std::string(static_cast<std::size_t>((type.upper + 7) / 8 * 2), '0') + "\"";
        }
    }

    // What a value is worth besides its name.
    double worth(const rtx::Type& type)
    {
        const auto [known, isNew] = known_.emplace(&type, 0);
        if (isNew)
        {
            const double found = computed(type);
            known_[&type] = found;
            return found;
        }
        return known->second;
    }

    double computed(const rtx::Type& type)
    {
        constexpr double list = 9; // octets of its tags
        double sum = -price_ * type.bits;
        switch (type.kind)
        {
        case rtx::Kind::Sequence:
            for (unsigned i = 0; i < type.rootCount; ++i)
            {
                sum += isTaken(type, i) ? memberWorth(type, i) : 0;
            }
            return sum + list;
        case rtx::Kind::Choice:
            return sum + list + memberWorth(type, bestAlternative(type));
        case rtx::Kind::Array:
        case rtx::Kind::List:
            return sum + list + bestCount(type) * elementWorth(type);
        case rtx::Kind::BitStr32:
        case rtx::Kind::BitOctets:
            return static_cast<double>(literal(type).size()) - price_ * type.upper;
        default:
            return static_cast<double>(literal(type).size()) - price_ * rtx::member(type, 0).bits;
        }
    }

    static double item(std::size_t name)
    {
        constexpr double rest = 4 + 1 + 4; // its tag, a blank, its bits
        return rest + static_cast<double>(name);
    }

    double memberWorth(const rtx::Type& type, unsigned i)
    {
        return item(std::string_view(type.names[i]).size()) + worth(*type.members[i].type);
    }

    double elementWorth(const rtx::Type& type)
    {
        constexpr std::size_t index = 3;
        return item(index) + worth(type.element());
    }

    bool isTaken(const rtx::Type& type, unsigned i)
    {
        return type.members[i].flag < 0 || memberWorth(type, i) > 0;
    }

    unsigned bestAlternative(const rtx::Type& type)
    {
        unsigned best = 0;
        for (unsigned i = 1; i < type.rootCount; ++i)
        {
            best = memberWorth(type, i) > memberWorth(type, best) ? i : best;
        }
        return best;
    }

    int bestCount(const rtx::Type& type)
    {
        return elementWorth(type) > 0 ? type.upper : type.lower;
    }

    double price_;
    std::map<const rtx::Type*, double> known_;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fprintf(stderr, "usage: %s PRICE\n", argv[0]);
        return 2;
    }
    std::puts(Densest(std::strtod(argv[1], nullptr)).text(*asn1Type_CellGroupConfig()).c_str());
    return 0;
}
