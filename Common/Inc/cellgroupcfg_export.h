#ifndef CELLGROUPCFG_EXPORT_H
#define CELLGROUPCFG_EXPORT_H

/** Marks what the shared library offers; everything else in it is hidden. */
#define CELLGROUPCFG_API __attribute__((visibility("default")))

#endif
