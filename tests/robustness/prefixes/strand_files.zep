random A 4
writelinid A first
writelinom A
second
putlinid A ideal
putlinom A omega
putlinres A both
putlinsyz A syzygies
putlinomsyz A
relations
writelinres A third
putlinres A folder
putlinsyz A
full
putlinom A loop
writelinid
writelinid 
A 
last
list
