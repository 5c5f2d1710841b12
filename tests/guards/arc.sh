#!/usr/bin/env bash
# The public headers under automatic reference counting, with all of clang's warnings: alone, and as users write.
# And the module maps: in the staged tree, and in a bundle like that of macOS.  arc.sh LIST BUILD
#
# Left out are warnings of padding, of C89 and C++98, and of fields in the interface, where the gcc runtime wants them.
# Modules are not tried with C++20, whose own clang 14 switches on then: they do not see Foundation, which is no module
# here.
set -u
list=$1 build=$2
stamp=$list.arc_passed
"$(dirname "$0")/unchanged_since.sh" "$stamp" "$build/include" "$0" && exit 0
place=$(mktemp -d)
trap 'rm -r "$place"' EXIT
"$(dirname "$0")/../support/headers_for_arc.sh" "$place/objc_headers"
failed=0
complain() { echo "$@"; failed=1; }

arc=(-fobjc-arc -fobjc-runtime=macosx-10.11 -fexceptions -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1
     -isystem "$place/objc_headers" -isystem /usr/include/GNUstep -idirafter "$(g++ -print-file-name=include)")
every_warning=(-Werror -Weverything -Wno-padded -Wno-objc-interface-ivars -Wno-c++98-compat-pedantic
               -Wno-declaration-after-statement)
staged=("-I$build/include")
check() { clang -fsyntax-only "$@" -; }  # of a text on standard input
check_objc() { check -x objective-c -std=gnu11 "${arc[@]}" "${every_warning[@]}" "$@"; }
check_objcxx() { check -x objective-c++ -std=c++20 "${arc[@]}" "${every_warning[@]}" "$@"; }

all='#import <Korvane_ZEB/Korvane_ZEB.h>'
plain='#include <Korvane_ZEB/Korvane_ZEB_C.h>'
companions="$(cd "$build/include" && printf '#include <%s>\n' Korvane_ZEB/*.hpp)"
check_objc "${staged[@]}" <<<"$all" || complain "as Objective-C"
check_objcxx "${staged[@]}" <<<"$all"$'\n'"$companions" || complain "as Objective-C++"
for language in '-x c -std=c11' '-x c++ -std=c++11'; do
    check $language -pedantic "${every_warning[@]}" "${staged[@]}" <<<"$plain" || complain "with $language"
done

# What is between the two notes must have a note of its own where it may be null: clang finds those alone that stand
# in a file with any.
while read -r header; do
    code=$(gcc -fpreprocessed -dD -E -x c++ "$header" 2>/dev/null)
    if grep -qE '\*|\bid\b|\bSEL\b|\bClass\b' <<<"$code" && grep -qE '^([-+] \(|ZEB_EXPORT )' <<<"$code"; then
        grep -q ZEB_ASSUME_NONNULL_BEGIN "$header" || complain "says nothing of null: $header"
    fi
done < <(grep -E '\.(h|hpp)$' "$list")

# What users write: a subclass comes back as itself, and every reference is counted as often as the compiler thinks.
program="$all"'
@interface Line : ZEB_String
@end
Line *line_of(ZEB_Object_Array *objects, Line *line);
Line *line_of(ZEB_Object_Array *objects, Line *line)
{
    id least = nil, greatest = nil;
    [objects get_minimum_object:&least maximum:&greatest];
    __unsafe_unretained id block[2] = {least, greatest};
    [objects append_objects:block count:2];
    [objects relink_to_objects:block count:2];
    [objects append_object:(__bridge id)(__bridge_retained void *)line];
    Line *copied = [line copy];
    if ([copied is_empty])
        copied = [Line string_with_format:"%s", "text"];
    Line *other = [line count] > 1 ? [Line array_with_capacity:1] : [[[Line alloc] init_with_c_string:NULL] duplicate];
    return [copied is_equal:other] ? copied : other;
}'
accepts() { # STATEMENT: among what users write
    check_objc "${staged[@]}" <<<"$program
void use(ZEB_Double_Array *numbers, ZEB_Object_Array *objects);
void use(ZEB_Double_Array *numbers, ZEB_Object_Array *objects) { $1 (void)numbers; (void)objects; }"
}
accepts '[numbers sort]; numbers = [numbers duplicate];' || complain "what users write"
while read -r wrong; do
    accepts "$wrong" 2>/dev/null && complain "is not refused: $wrong"
done <<'WRONG'
numbers = [Line array_with_capacity:1];
numbers = [[ZEB_Int_Array alloc] init_with_length:1];
[numbers sort_doubles_with_comparison:NULL];
[numbers get_minimum_double:NULL maximum:NULL];
id block[2] = {numbers, objects}; [objects relink_to_objects:block count:2];
WRONG

# As a module.
module="@import Korvane_ZEB;${program#"$all"}"
bundle=$place/Korvane_ZEB.framework
mkdir -p "$bundle/Headers" "$bundle/Modules"
cp -P "$build"/include/Korvane_ZEB/*.h* "$bundle/Headers"
cp "$build/generated/bundle/module.modulemap" "$bundle/Modules"
modules=(-fmodules "-fmodules-cache-path=$place/cache" -Wall -Wextra -Werror)
for tree in "${staged[*]}" "-F$place"; do
    check -x objective-c "${arc[@]}" "${modules[@]}" $tree <<<"$module" || complain "as a module, $tree"
    check -x objective-c++ -std=c++17 "${arc[@]}" "${modules[@]}" $tree <<<"$module" || complain "in C++, $tree"
    check -x c "${modules[@]}" $tree <<<"$plain
int main(void) { return ZC_days_in_month(2000, 2) - 29; }" || complain "as a module in C, $tree"
    check_objcxx $tree <<<"$all"$'\n'"$companions" || complain "without modules, $tree"
done
[ $failed -eq 0 ] && touch "$stamp"
exit $failed
