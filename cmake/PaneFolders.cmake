# The folders of the pane's code, each of which is a library of its name. Whatever deals with the pane as a whole takes
# them from here; tools/pane-folders reads this line.
set(PANE_FOLDERS core cells pages pane backup)
