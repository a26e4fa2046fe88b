"""list_types.py <generated header> <output>: a line TYPE("<ASN.1 name>", <C name>), for each type with functions in it."""

import re
import sys

FUNCTIONS = re.compile(r"// ([\w-]+): encode into and decode from .*\nint asn1PE_(\w+)\(")

with open(sys.argv[1], encoding="ascii") as header:
    found = FUNCTIONS.findall(header.read())
if not found:
    sys.exit(f"{sys.argv[1]}: no type has functions")
with open(sys.argv[2], "w", encoding="ascii") as output:
    for asn_name, c_name in found:
        output.write(f'TYPE("{asn_name}", {c_name}),\n')
