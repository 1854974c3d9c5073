# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# rooms.awk layers.txt: the rooms and arrows of a build as a drawing for Graphviz. layers.txt is the table that CMake writes of
# the calls of add_layer, lowest first. An arrow leads from a room to one that it uses; where a way over other rooms leads there
# too, it is left out, or nothing could be read.
BEGIN { FS = "|" }
NF {
  name[++count] = $1
  folder[$1] = $2
  uses[$1] = $3
  split($3, used, ",")
  for (i in used) reaches[$1, used[i]] = 1
  # Those used stand above, so what they reach is known.
  for (i in used)
    for (r = 1; r < count; ++r)
      if ((used[i], name[r]) in reaches) { reaches[$1, name[r]] = 1; over[$1, name[r]] = 1 }
}
function house(room) {
  if (room ~ /^src\/platform\/qt\//) return "platform/qt"
  if (room ~ /^src\/platform\//) return "platform"
  return room ~ /^src\// ? "core" : "tools"
}
END {
  print "digraph rooms {"
  print "  rankdir=TB; nodesep=0.25; ranksep=0.45; bgcolor=\"white\"; fontname=\"sans-serif\"; newrank=true;"
  print "  node [shape=box, style=\"rounded,filled\", fillcolor=\"white\", color=\"#1f4e79\", fontname=\"sans-serif\", fontsize=12];"
  print "  edge [color=\"#5f6b76\", arrowsize=0.6];"
  split("core platform platform/qt tools", houses, " ")
  split("#e8f0f8 #eef5e9 #fdf3e1 #f3edf7", colours, " ")
  for (h = 1; h <= 4; ++h) {
    printf "  subgraph \"cluster %s\" { label=\"%s\"; style=\"filled\"; color=\"%s\";", houses[h], houses[h], colours[h]
    for (n = 1; n <= count; ++n) if (house(folder[name[n]]) == houses[h]) printf " \"%s\";", name[n]
    print " }"
  }
  for (n = 1; n <= count; ++n) {
    number = split(uses[name[n]], used, ",")
    for (i = 1; i <= number; ++i)
      if (!((name[n], used[i]) in over)) printf "  \"%s\" -> \"%s\";\n", name[n], used[i]
  }
  print "}"
}
