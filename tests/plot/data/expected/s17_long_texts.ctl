  A0H1    
1    1    2    .0028   .002    .0020   .00Un titre de cadre beaucoup trop long pour tenir dans les quatre-vingts colonnes 6       1       0       6    .000    .00         0
0      .001      .000      .001      .000   .1000   .1001    1    4    .00un titre d'axe qui depasse les quarante                                             V    F                    
0    0    0       0       0                 
                                                                               c                                                                                                                                                                                                                                                           f.crb-1      2       0       6    .00                               + symbole8           00       0       
0    
