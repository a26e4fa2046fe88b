#ifndef RRCRECORDTYPE_H
#define RRCRECORDTYPE_H

#include "asn1Runtime.h"
#include "vos_types.h"

/*
 * What the records of the cell group are made of: every structure, field, mask bit and choice, and the element of the
 * standard that each feeds. The tables are made from the comments of the headers (scripts/records.py), so that whoever
 * walks over a record needs no list of its own.
 *
 * All that the tables point to is constant and lives as long as the program. Indices are those of the same record; -1
 * stands for none.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

typedef struct RrcRecordType RrcRecordType;

/** What a field holds. */
enum
{
    RRC_FIELD_NUMBER = 0,  /**< an INTEGER */
    RRC_FIELD_ENUMERATED,  /**< the number of an enumeration's value; element has the names, upper is the last one's
                                number without spare values, which are sent all the same */
    RRC_FIELD_BOOLEAN,     /**< a BOOLEAN: true when any of the low 8 bits is set */
    RRC_FIELD_BITS,        /**< a bit string in the low bits of a number, its first bit the most significant of them */
    RRC_FIELD_OCTETS,      /**< a bit string in octets as they lie in memory, also where the field is a number */
    RRC_FIELD_MASK,        /**< bits, each of which is described in the record's bits */
    RRC_FIELD_COUNT,       /**< entries used of the array whose `count` is this field */
    RRC_FIELD_ALTERNATIVE, /**< the number of an alternative; the choice whose selector is this field has them */
    RRC_FIELD_VALUE,       /**< the value of the alternative chosen, of that alternative's type */
    RRC_FIELD_RECORD,      /**< a structure */
    RRC_FIELD_UNION,       /**< a union, of which the choice's option names the member */
    RRC_FIELD_UNREAD       /**< nothing looks at it */
};

/** How a field departs from the others. */
enum
{
    RRC_FIELD_ALWAYS_SENT = 1,  /**< optional in the standard, sent without being switched on */
    RRC_FIELD_NOT_SENT = 2,     /**< put into the element tree and not sent */
    RRC_FIELD_ELSE_ABSENT = 4,  /**< an optional member that is absent with any value out of its range */
    RRC_FIELD_ELSE_DEFAULT = 8, /**< a mandatory member that is sent as its bit's `otherwise` when the bit is clear */
    RRC_FIELD_TWOS_COMPLEMENT = 16, /**< an unsigned field that holds a signed number as its two's complement */
    RRC_FIELD_REST_NOT_SENT = 32    /**< a count above whose range entries are left out, and the message is sent */
};

/** What a mask's bit does. */
enum
{
    RRC_BIT_GUARDS = 0, /**< fields are given; their `guard` is this bit */
    RRC_BIT_CHOOSES,    /**< chooses an alternative */
    RRC_BIT_SENDS,      /**< the member at `path`, which has no field, is sent with its one value or content */
    RRC_BIT_NOT_SENT,   /**< the member at `path`, which has no field, is marked and not sent */
    RRC_BIT_UNREAD      /**< nothing looks at it */
};

/** The step of a way that goes to the entries of a list */
#define RRC_STEP_ENTRY 0xFFFF

/** A way from an element into it: indices of members and alternatives, RRC_STEP_ENTRY for the entries of a list. */
typedef struct RrcRecordWay
{
    const char* path;    /**< as the standard names it: "drx-onDurationTimer.milliSeconds"; "" is the element itself */
    const UINT16* steps; /**< with those through SetupRelease, which the path leaves out */
    UINT16 stepCount;    /**< of steps */
    const RtxType* target; /**< the type at the end; null where the path is */
} RrcRecordWay;

/** A field of a structure or a member of a union */
typedef struct RrcRecordField
{
    const char* name;            /**< as in the header */
    RrcRecordWay way;            /**< from the record's element to what it feeds; no path: it feeds nothing */
    const RrcRecordType* record; /**< of a structure or union */
    const char* unit;            /**< "symbols", "1/32 ms"; null where the standard's own is no surprise */
    const char* note;            /**< further words of the header, or "" */
    INT64 lower;                 /**< least value, of an array's entry each, of a signed one as a signed number */
    INT64 upper;                 /**< greatest value */
    UINT32 offset;               /**< in the record, in octets */
    UINT32 size;                 /**< in octets, of an array that of one entry */
    UINT16 bound;                /**< entries of an array; 0: it is none */
    UINT16 bits;                 /**< of a bit string, or of a count whose upper bits are dropped: how many are sent */
    UINT8 kind;                  /**< RRC_FIELD_NUMBER .. */
    UINT8 flags;                 /**< RRC_FIELD_ALWAYS_SENT .. */
    UINT8 isSigned;              /**< of a number */
    UINT8 bitWidth;              /**< of a bit field, the first one in `size` octets; 0: it is none */
    INT16 count;                 /**< of an array: the field that says how many entries are used; none: all */
    INT16 guard;                 /**< the bit without which the field is not read */
    INT16 choice;                /**< the choice whose alternative it holds, or part of it */
    INT16 alternative;           /**< of that choice; none: the choice's options say which */
} RrcRecordField;

/** A bit of a mask */
typedef struct RrcRecordBit
{
    const char* name;      /**< RRC_DRX_CFG_SHORT_DRX_PRESENCE */
    const char* note;      /**< further words of the header, or "" */
    const char* otherwise; /**< of a bit that guards a mandatory member: the value sent without it, else null */
    RrcRecordWay way;      /**< RRC_BIT_SENDS, RRC_BIT_NOT_SENT: the member */
    UINT16 mask;           /**< the field that has it */
    UINT8 number;          /**< in the mask, from 0 */
    UINT8 role;            /**< RRC_BIT_GUARDS .. */
    INT16 with;            /**< a bit without which this one is not looked at */
} RrcRecordBit;

/** An alternative and where its content stands */
typedef struct RrcRecordOption
{
    INT16 number;       /**< of the bit or of the alternative in the selector; -1: taken when no bit is set */
    INT16 bit;          /**< of the record's bits; none where the selector is a number */
    UINT16 alternative; /**< index in the choice */
    UINT16 sentAs;      /**< index of the one that goes out, nearly always the same */
    INT16 field;        /**< none: it has no content, or several fields name it as their alternative */
    INT16 member;       /**< of that field, a union or structure; none: the field itself */
} RrcRecordOption;

/** A CHOICE that a record makes */
typedef struct RrcRecordChoice
{
    RrcRecordWay way;               /**< to the CHOICE */
    UINT16 selector;                /**< the mask, or the field with the alternative's number */
    UINT8 byNumber;                 /**< the selector holds a number */
    UINT16 optionCount;             /**< of options */
    const RrcRecordOption* options; /**< of several whose bits are set the last one wins */
} RrcRecordChoice;

/** The number of what rrcInit does not know */
#define RRC_NO_RECORD_NUMBER 0xFFFF

/** A structure or union, as one type of the standard: one that serves two types is described twice. */
struct RrcRecordType
{
    const char* name;             /**< RrcDrxCfg_t, explicit_s; one without a name as RrcDrxCfg_t.drxOnDurationTimer */
    const char* header;           /**< "rrcCodec/rrcMac.h" */
    const char* path;             /**< of what it holds: "DRX-Config", "CFRA.resources.ssb" */
    const char* note;             /**< further words of the header, or "" */
    const RtxType* element;       /**< the type of that */
    UINT32 size;                  /**< in octets */
    UINT8 isUnion;                /**< its fields are the members of a union */
    UINT16 fieldCount;            /**< of fields */
    UINT16 bitCount;              /**< of bits */
    UINT16 choiceCount;           /**< of choices */
    const RrcRecordField* fields; /**< in their order */
    const RrcRecordBit* bits;     /**< of all its masks, those of one mask in ascending order */
    const RrcRecordChoice* choices;        /**< that it makes */
    const struct RrcRecordCheckOp* checks; /**< each field in short, for rrcCheckCellGroupCfg alone */
    UINT16 number; /**< that rrcInit knows it by (rrcRecords.h); RRC_NO_RECORD_NUMBER where it has no name of its own */
};

/** All records, the whole cell group (RrcCellGroupCfg_t) first. */
extern const RrcRecordType* const rrcRecordTypes[];
/** How many there are */
extern const UINT32 rrcRecordTypeCount;

/*
 * Reading and writing one record by its description. `record` points to it and is never null; an index beyond an array
 * is never given.
 */

/** The bits that a number, enumeration, mask or count holds, in an array that of the entry with this index. */
UINT64 rrcRecordBits(const RrcRecordField* field, const void* record, UINT32 index);

/** The same as a number: signed where the field is, or where it holds a two's complement. */
INT64 rrcRecordNumber(const RrcRecordField* field, const void* record, UINT32 index);

/** Stores the low bits of a number. */
void rrcRecordStore(const RrcRecordField* field, void* record, UINT32 index, UINT64 bits);

/** The place of a field in its record, in an array that of the entry with this index. */
const void* rrcRecordPlace(const RrcRecordField* field, const void* record, UINT32 index);

/** The entries of a field that a composition reads: 1 where it is no array, never more than the array has. */
UINT32 rrcRecordEntries(const RrcRecordType* type, const void* record, UINT32 field);

/** The option that a choice takes; null: none, and the encoder refuses it if it is sent at all. */
const RrcRecordOption* rrcRecordChosen(const RrcRecordType* type, const void* record, UINT32 choice);

/** The choice whose alternative a field selects, by a number or as a mask; -1: none. */
INT32 rrcRecordChoiceBy(const RrcRecordType* type, UINT32 selector);

/** The type of an RRC_FIELD_VALUE's alternative; null: none is chosen, or the structure around this one chooses it. */
const RtxType* rrcRecordValueType(const RrcRecordType* type, const void* record, UINT32 field);

/** Whether a composition reads this field of a structure: 1 or 0. Of a union it reads the option's member alone. */
INT32 rrcRecordIsRead(const RrcRecordType* type, const void* record, UINT32 field);

/** No record has more fields or bits, */
#define RRC_RECORD_MAX_FIELDS 64
/** or more choices. */
#define RRC_RECORD_MAX_CHOICES 4

/** The fields of a record that somebody has */
typedef struct RrcRecordGiven
{
    UINT64 fields;                        /**< those with an index whose bit is set */
    INT16 members[RRC_RECORD_MAX_FIELDS]; /**< of a union among them: its member */
} RrcRecordGiven;

/** What has to be said elsewhere in the record so that they are read */
typedef struct RrcRecordFollowing
{
    UINT64 bits;                           /**< indices of bits that are set */
    INT16 options[RRC_RECORD_MAX_CHOICES]; /**< of each choice; -1: the fields leave it open */
} RrcRecordFollowing;

/** Finds what follows from fields: the bits that guard them, and the option that alone holds all those of a choice. */
void rrcRecordFollow(const RrcRecordType* type, const RrcRecordGiven* given, RrcRecordFollowing* following);

/** The bits of a mask that follow. */
UINT64 rrcRecordFollowingMask(const RrcRecordType* type, const RrcRecordFollowing* following, UINT32 mask);

/** The member of a union or structure that the chosen alternative stands in; -1: all of it, or none is chosen. */
INT32 rrcRecordMember(const RrcRecordType* type, const void* record, UINT32 field);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
