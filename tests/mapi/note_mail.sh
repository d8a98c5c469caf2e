#!/bin/sh
# Stands in for the mail program that Wine's own MAPI calls: notes what it is called with in
# mailer.txt of the folder KESTO_MAIL, a line an argument. The file is whole when it appears.
printf '%s\n' "$@" >"$KESTO_MAIL/mailer.new" && mv "$KESTO_MAIL/mailer.new" "$KESTO_MAIL/mailer.txt"
