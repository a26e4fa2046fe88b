#ifndef OWN_PLATFORM_H
#define OWN_PLATFORM_H

/* Lines that the product's own console has received. */
extern int ownConsoleLines;

#endif
