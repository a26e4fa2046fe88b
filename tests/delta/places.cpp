#include "places.h"

#include <algorithm>

namespace delta
{

namespace
{

bool isEntries(const Type& type)
{
    return (type.kind == Kind::List || type.kind == Kind::Array) && type.identity != rtx::noIdentity;
}

class Walk
{
public:
    Walk(const std::function<void(const Place&)>& visit, bool choices) : visit_(visit), choices_(choices) {}

    void value(const Type& type)
    {
        switch (type.kind)
        {
        case Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                if (need(type, i).list != ListRole::Release)
                {
                    step(type, i, !choices_);
                }
            }
            break;
        case Kind::Choice:
            if (choices_ && !isSetupRelease(type))
            {
                visit_(place_);
            }
            for (unsigned i = isSetupRelease(type) ? 1 : 0; i < type.memberCount; ++i)
            {
                step(type, i, false);
            }
            break;
        case Kind::List:
            step(type, 0, false);
            break;
        default:
            break;
        }
    }

private:
    void step(const Type& type, unsigned index, bool visited)
    {
        place_.steps.push_back({&type, index});
        if (visited)
        {
            visit_(place_);
        }
        value(*type.members[index].type);
        place_.steps.pop_back();
    }

    const std::function<void(const Place&)>& visit_;
    bool choices_;
    Place place_;
};

// The step's own place in the value, made where it is not there.
void* enter(Heap& heap, const Step& step, void* value, Where& where)
{
    const Type& type = *step.type;
    const Type& inner = *type.members[step.index].type;
    switch (type.kind)
    {
    case Kind::Sequence:
        if (!has(type, value, step.index))
        {
            void* const place = put(type, value, step.index);
            if (isEntries(inner))
            {
                setElements(
                    heap, inner, place,
                    {makeEntry(heap, inner, mainIdentity(inner), 0), makeEntry(heap, inner, otherIdentity(inner), 0)});
            }
            else
            {
                fill(heap, inner, place, 0, where);
            }
        }
        return at(type, value, step.index);
    case Kind::Choice:
        if (alternative(value) != step.index)
        {
            fill(heap, inner, choose(heap, type, value, step.index), 0, where);
        }
        return content(type, value);
    default:
        for (void* const element : elements(type, value))
        {
            if (!isEntries(type) || identity(type, element) == mainIdentity(type))
            {
                where = isEntries(type) ? inEntry(type, element) : where;
                return element;
            }
        }
        return nullptr;
    }
}

} // namespace

std::string Place::text() const
{
    std::string text = root().name;
    for (const Step& step : steps)
    {
        const Type& type = *step.type;
        if (type.kind != Kind::List)
        {
            text += std::string(".") + type.names[step.index];
        }
        else if (type.identity == rtx::noIdentity)
        {
            text += "[0]";
        }
        else
        {
            text += std::string("[") + rtx::identityName(type) + " " + std::to_string(mainIdentity(type)) + "]";
        }
    }
    return text;
}

bool Place::inPlainList() const
{
    return std::any_of(steps.begin(), steps.end(),
                       [](const Step& step) { return step.type->kind == Kind::List && !isEntries(*step.type); });
}

bool Place::inAction() const
{
    return std::any_of(steps.begin(), steps.end() - 1,
                       [](const Step& step)
                       { return step.type->kind == Kind::Sequence && isAction(need(*step.type, step.index)); });
}

bool Place::passes(const char* type, const char* member) const
{
    return std::any_of(steps.begin(), steps.end(),
                       [=](const Step& step)
                       {
                           return isNamed(step.type->name, type) && step.type->kind == Kind::Sequence &&
                                  isNamed(step.type->names[step.index], member);
                       });
}

int Place::entryStep() const
{
    for (size_t i = steps.size(); i-- != 0;)
    {
        if (steps[i].type->kind == Kind::List && isEntries(*steps[i].type))
        {
            return static_cast<int>(i);
        }
    }
    return -1;
}

int64_t mainIdentity(const Type& list)
{
    return firstIdentity(list) + 1;
}

int64_t otherIdentity(const Type& list)
{
    return firstIdentity(list) + 2;
}

void forEachMember(const std::function<void(const Place&)>& visit)
{
    Walk(visit, false).value(root());
}

void forEachChoice(const std::function<void(const Place&)>& visit)
{
    Walk(visit, true).value(root());
}

Spot reach(Heap& heap, void* tree, const Place& place)
{
    Spot spot{tree, {}};
    for (size_t i = 0; i + 1 < place.steps.size(); ++i)
    {
        spot.parent = enter(heap, place.steps[i], spot.parent, spot.where);
    }
    return spot;
}

const void* find(const void* tree, const Place& place)
{
    const void* value = tree;
    for (const Step& step : place.steps)
    {
        const Type& type = *step.type;
        const void* inner = nullptr;
        switch (type.kind)
        {
        case Kind::Sequence:
            inner = has(type, value, step.index) ? at(type, value, step.index) : nullptr;
            break;
        case Kind::Choice:
            inner = alternative(value) == step.index ? content(type, value) : nullptr;
            break;
        default:
            for (const void* const element : elements(type, value))
            {
                if (!isEntries(type) || identity(type, element) == mainIdentity(type))
                {
                    inner = element;
                    break;
                }
            }
            break;
        }
        if (inner == nullptr)
        {
            return nullptr;
        }
        value = inner;
    }
    return value;
}

} // namespace delta
