A4HRé1    
1    2    3    .0028   .003    .0019   .00                                                                     Hydrogramme6       0       0       7    .000    .00         0
0      .00120    .000      .002      .0010  .0000   .2002    5    4    .00                               Temps(mn)                            Débit (m3/s)    V    F#########0#######0.0
2    5    2       0       0                 
                                                                           Cac_1                                                                                                                                                                                                                                                         crb.Deb0       2       167116806    .00                                   Cac_11    167116804       0       
                                                                           Cac_2                                                                                                                                                                                                                                                         crb.Deb0       2       255     6    .00                                   Cac_21         2554       0       
1    
       4       3     1.5   0.                                                                           Nortavel, fichier crb.Deb0       0       0              0        
