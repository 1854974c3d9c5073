An opened document is judged by its own standard

The standard that the user chose last is for patients to come. These twins are charted by Hadlock (1984): at the last
examination the BPD of the first lies 0.15 SD above its mean, and 0.04 above that of Westerway, which is the choice here.

{"open":"$DATA/../../resources/samples/twins.nascor"}
{"beside":true}
=~ {"beside":{"bpdZ":"+0.15","bpdCentile":"55.9","hcZ":"+0.37","acZ":"+0.24","flZ":"+0.22"}}
