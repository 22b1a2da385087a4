# cmake -D TEMPLATE=index.html -D STYLE=style.css -D SCRIPTS=a.js;b.js -D OUTPUT=PageTemplate.cpp -P EmbedPage.cmake
# Writes the page with its style and scripts as a C++ source. The page's content security policy has the hashes of both, so
# that a browser runs no other script and applies no other style.

cmake_minimum_required(VERSION 3.25)

# The base64 hash of `content` for a content security policy.
function(policy_hash out content)
    set(digits "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
    string(SHA256 hash "${content}")
    string(APPEND hash "00") # pad 256 bits to a multiple of 12 bits: 3 hexadecimal digits or 2 base64 digits
    set(encoded "")
    foreach(begin RANGE 0 63 3)
        string(SUBSTRING ${hash} ${begin} 3 bits)
        math(EXPR high "0x${bits} / 64")
        math(EXPR low "0x${bits} % 64")
        foreach(value ${high} ${low})
            string(SUBSTRING ${digits} ${value} 1 digit)
            string(APPEND encoded ${digit})
        endforeach()
    endforeach()
    string(REGEX REPLACE "A$" "=" encoded ${encoded}) # the last digit has only padding
    set(${out} "sha256-${encoded}" PARENT_SCOPE)
endfunction()

file(READ ${STYLE} style)
set(script "\"use strict\";\n{\n") # in a block, so that the names of the scripts are not global
foreach(file IN LISTS SCRIPTS)
    file(READ ${file} content)
    string(APPEND script "${content}\n")
endforeach()
string(APPEND script "}\n")

file(READ ${TEMPLATE} page)
policy_hash(style_hash "${style}")
policy_hash(script_hash "${script}")
string(REPLACE "@STYLE_HASH@" "${style_hash}" page "${page}")
string(REPLACE "@SCRIPT_HASH@" "${script_hash}" page "${page}")
string(REPLACE "@STYLE@" "${style}" page "${page}")
string(REPLACE "@SCRIPT@" "${script}" page "${page}")

file(WRITE ${OUTPUT} "#include \"Gallery/PageTemplate.h\"\n\nconst std::string_view Gallery::pageTemplate = R\"page(${page})page\";\n")
