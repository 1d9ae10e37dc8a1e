# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DCMARK=… -DSOURCE=page.md -DRESULT=page.html -P ToHtml.cmake
execute_process(COMMAND ${CMARK} ${SOURCE} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${SOURCE} title LIMIT_COUNT 1)
string(REGEX REPLACE "^# " "" title "${title}")
file(WRITE ${RESULT} "<!DOCTYPE html>
<html lang=\"en\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width\">
<title>${title}</title>
<style>body { max-width: 45em; margin: 2em auto; padding: 0 1em; font-family: sans-serif; line-height: 1.5 }
img { max-width: 100% }</style>
</head>
<body>
${body}</body>
</html>
")
