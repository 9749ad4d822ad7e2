# Sourced by the helpers that bring something into the archive, of tools that commit here and push then.
# The pack provides
#   commit UNITS COMMENTFILE   commits these files; sets $answer
#   begin_delivery             leaves word of the commit for the case that this run is killed
#   end_delivery               takes that word away
#   tag_and_push               brings commits and label to the archive, or nothing; sets $answer
#   was_late                   tells from $answer whether somebody was quicker
#   catch_up UNITS             brings what others have done to other files
#   take_back UNITS            undoes the commit; the files stay as they are

moved_on="The archive has newer commits than this folder. Fetch first, then do it again."

refuse_push() {
  was_late && fail "$moved_on"
  give_up
}

# withdraw UNITS: takes the commit back; $answer goes on saying why.
withdraw() {
  reason=$answer
  take_back "$1"
  answer=$reason
}

# publish UNITS: as `tag_and_push`; takes the commit back when that fails.
publish() {
  if tag_and_push; then
    end_delivery
    return
  fi
  withdraw "$1"
  refuse_push
}

# deliver UNITS COMMENTFILE: commits these files and pushes; when somebody is quicker with other files,
# once more on top of that.
deliver() {
  for patience in 3 2 1; do
    commit "$1" "$2" || give_up
    begin_delivery
    if tag_and_push; then
      end_delivery
      return
    fi
    withdraw "$1"
    was_late && [ "$patience" -gt 1 ] || refuse_push
    catch_up "$1"
  done
}
