// The processor's time that a call takes.
#ifndef LEASTTIME_H
#define LEASTTIME_H

#include <ctime>

namespace bench
{

// Of some calls the least, in ns: other load on the machine disturbs that the least.
template <typename Call>
double leastTime(int calls, Call call)
{
    const auto now = []
    {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
    };
    double least = 0;
    for (int i = 0; i < calls; ++i)
    {
        const double start = now();
        call();
        const double time = now() - start;
        if (time > 0 && (least == 0 || time < least)) // a virtual processor's clock may stand still
        {
            least = time;
        }
    }
    return least;
}

} // namespace bench

#endif
