#!/bin/sh
# Shows a page in the user's browser; the report library runs it with the page as its argument.
exec xdg-open "$1"
