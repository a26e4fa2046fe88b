#include <pthread.h>

#include <atomic>
#include <cstring>

#include "vos_lib.h"

namespace
{

struct FilteredName
{
    INT32 level;
    char name[VOS_PRINT_FILTER_NAME_MAX + 1]; // empty: everything at this level
};

pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;
FilteredName entries[VOS_PRINT_FILTER_ENTRIES];

// Changed under the lock only, read without it: as a rule nothing is filtered and the lock is not taken.
std::atomic<UINT32> numEntries{0};

class LockGuard
{
public:
    LockGuard()
    {
        (void)pthread_mutex_lock(&lock);
    }

    ~LockGuard()
    {
        (void)pthread_mutex_unlock(&lock);
    }

    LockGuard(const LockGuard&) = delete;
    LockGuard& operator=(const LockGuard&) = delete;
};

FilteredName* find(INT32 level, const char* name)
{
    const UINT32 num = numEntries.load(std::memory_order_relaxed);
    for (UINT32 i = 0; i < num; i++)
    {
        if (entries[i].level == level && std::strcmp(entries[i].name, name) == 0)
        {
            return &entries[i];
        }
    }
    return nullptr;
}

} // namespace

BOOL vos_info_print_filter_is_filtered(INT32 level, const char* name)
{
    if (numEntries.load(std::memory_order_acquire) == 0)
    {
        return 0;
    }

    const LockGuard guard;
    return find(level, "") != nullptr || (name != nullptr && find(level, name) != nullptr) ? 1 : 0;
}

INT32 vos_info_print_filter_set(INT32 level, const char* name, BOOL filtered)
{
    const bool nameFits =
        name == nullptr || (*name != '\0' && strnlen(name, sizeof(entries[0].name)) < sizeof(entries[0].name));
    if (level < _vos_print_lv_info || level > _vos_print_lv_err || !nameFits)
    {
        return VOS_ERROR;
    }

    const char* const key = name == nullptr ? "" : name;
    const LockGuard guard;
    const UINT32 num = numEntries.load(std::memory_order_relaxed);
    FilteredName* const entry = find(level, key);

    if (filtered != 0 && entry == nullptr)
    {
        if (num == VOS_PRINT_FILTER_ENTRIES)
        {
            return VOS_ERROR;
        }
        entries[num].level = level;
        std::strcpy(entries[num].name, key);
        numEntries.store(num + 1, std::memory_order_release);
    }
    else if (filtered == 0 && entry != nullptr)
    {
        *entry = entries[num - 1];
        numEntries.store(num - 1, std::memory_order_release);
    }
    return VOS_OK;
}

void vos_info_print_filter_clear(void)
{
    const LockGuard guard;
    numEntries.store(0, std::memory_order_release);
}
